#include "twin.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHash>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMetaProperty>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabBar>
#include <QTableWidget>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>

#include <functional>
#include <vector>

namespace
{

using Make = std::function<QWidget *(QWidget *parent)>;
using PartPointer = std::unique_ptr<Twin::Part>;

template <typename Widget> QWidget *makeOne(QWidget *parent)
{
    return new Widget(parent);
}

template <typename Widget> QWidget *makeOriented(QWidget *parent)
{
    return new Widget(Qt::Horizontal, parent);
}

/// Windows stand in another one here, as panels do.
template <typename Window> QWidget *makeWindow(QWidget *parent)
{
    auto *window = new Window(parent);
    window->setParent(parent, Qt::Widget);
    return window;
}

/// The factory of the Qt class that \a model is or derives from.
Make factoryOf(const QWidget &model)
{
    static const QHash<QByteArray, Make> factories{
        {"QWidget", makeOne<QWidget>},
        {"QFrame", makeOne<QFrame>},
        {"QLabel", makeOne<QLabel>},
        {"QToolButton", makeOne<QToolButton>},
        {"QPushButton", makeOne<QPushButton>},
        {"QCheckBox", makeOne<QCheckBox>},
        {"QRadioButton", makeOne<QRadioButton>},
        {"QLineEdit", makeOne<QLineEdit>},
        {"QSpinBox", makeOne<QSpinBox>},
        {"QDoubleSpinBox", makeOne<QDoubleSpinBox>},
        {"QSlider", makeOriented<QSlider>},
        {"QScrollBar", makeOriented<QScrollBar>},
        {"QComboBox", makeOne<QComboBox>},
        {"QScrollArea", makeOne<QScrollArea>},
        {"QListWidget", makeOne<QListWidget>},
        {"QTreeWidget", makeOne<QTreeWidget>},
        {"QTableWidget", makeOne<QTableWidget>},
        {"QTabBar", makeOne<QTabBar>},
        {"QTabWidget", makeOne<QTabWidget>},
        {"QStackedWidget", makeOne<QStackedWidget>},
        {"QMainWindow", makeWindow<QMainWindow>},
        {"QDialog", makeWindow<QDialog>},
    };
    const QMetaObject *meta = model.metaObject();
    while (!factories.contains(meta->className()))
        meta = meta->superClass();
    return factories.value(meta->className());
}

struct Property {
    QMetaProperty property;
    QVariant value;
};

/// What a property of a part is set to where it differs from that of a new widget. Left out are
/// those that stand on their own (sheet, name, place) or follow from the sheet.
std::vector<Property> changedProperties(const QWidget &model, const QWidget &fresh)
{
    static const QList<QByteArray> leftOut{
        "objectName", "enabled",         "geometry",    "pos",         "size",
        "font",       "palette",         "cursor",      "windowTitle", "visible",
        "locale",     "styleSheet",      "windowFlags", "modal",       "sizeIncrement",
        "baseSize",   "layoutDirection", "down",        "currentRow",  "selectionBehaviorOnRemove",
    };
    std::vector<Property> changed;
    const QMetaObject *meta = fresh.metaObject();
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (!property.isWritable() || leftOut.contains(property.name()))
            continue;
        // An icon has no equality of its own.
        const QVariant value = property.read(&model);
        const bool isChanged = value.userType() == QMetaType::QIcon
            ? !value.value<QIcon>().isNull()
            : value != property.read(&fresh);
        if (isChanged)
            changed.push_back({property, value});
    }
    return changed;
}

using Kids = std::vector<QWidget *>;
using MakeLayout = std::function<QLayout *(const Kids &kids)>;
using Step = std::function<void(QWidget *widget, const Kids &kids)>;

} // namespace

/// A widget of the tree.
struct Twin::Part {
    Make make;
    QString name;
    QString sheet;
    std::vector<Property> properties;
    QString elidedText; ///< What is given to a control that elides, as bare Qt has to.
    QString caption; ///< What its button is as wide as.
    bool isDisabled = false;
    bool isHidden = false;
    bool isPlaced = false;
    QRect place;
    bool isContent = false; ///< Of a scroll area.
    std::vector<std::pair<QScrollBar *(QAbstractScrollArea::*)() const, QString>> barSheets;
    std::vector<PartPointer> children;
    std::vector<Step> steps; ///< What is left to be done once the children are there.
};

namespace
{

PartPointer readPart(const QWidget &model);

/// Reads the children of a part off those of its model.
class Reader
{
public:
    Reader(const QWidget &model, Twin::Part *part)
        : m_model(model)
        , m_part(part)
    {
    }

    void read()
    {
        readItems();
        readParts();
        for (const QObject *object : m_model.children()) {
            const auto *child = qobject_cast<const QWidget *>(object);
            if (child && !isQtsOwn(*child))
                kid(child);
        }
        readGroup();
        if (m_model.layout() && !isQtsOwnLayout()) {
            const MakeLayout makeLayout = readLayout(*m_model.layout());
            m_part->steps.push_back([makeLayout](QWidget *widget, const Kids &kids) {
                widget->setLayout(makeLayout(kids));
            });
        }
    }

private:
    /// What Qt's class makes for itself, every instance anew.
    bool isQtsOwn(const QWidget &child) const
    {
        return child.objectName().startsWith("qt_") || child.isWindow()
            || qobject_cast<const QAbstractItemView *>(&m_model)
            || qobject_cast<const QTabBar *>(&m_model) || qobject_cast<const QComboBox *>(&m_model)
            || qobject_cast<const QAbstractSpinBox *>(&m_model);
    }

    bool isQtsOwnLayout() const
    {
        return qobject_cast<const QStackedWidget *>(&m_model)
            || qobject_cast<const QMainWindow *>(&m_model)
            || qobject_cast<const QComboBox *>(&m_model);
    }

    /// The number of a child, which becomes a part at its first mention.
    std::size_t kid(const QWidget *child)
    {
        const auto known = m_kids.constFind(child);
        if (known != m_kids.constEnd())
            return *known;
        const std::size_t number = m_part->children.size();
        m_part->children.push_back(readPart(*child));
        m_kids.insert(child, number);
        return number;
    }

    void readParts()
    {
        if (const auto *area = qobject_cast<const QScrollArea *>(&m_model);
            area && area->widget()) {
            const std::size_t number = kid(area->widget());
            m_part->children[number]->isContent = true;
            m_part->steps.push_back([number](QWidget *widget, const Kids &kids) {
                static_cast<QScrollArea *>(widget)->setWidget(kids[number]);
            });
        }
        if (const auto *area = qobject_cast<const QAbstractScrollArea *>(&m_model)) {
            readSheet(area->verticalScrollBar()->styleSheet(),
                      &QAbstractScrollArea::verticalScrollBar);
            readSheet(area->horizontalScrollBar()->styleSheet(),
                      &QAbstractScrollArea::horizontalScrollBar);
        }
        if (const auto *stack = qobject_cast<const QStackedWidget *>(&m_model)) {
            for (int i = 0; i < stack->count(); ++i) {
                m_part->steps.push_back(
                    [number = kid(stack->widget(i))](QWidget *widget, const Kids &kids) {
                        static_cast<QStackedWidget *>(widget)->addWidget(kids[number]);
                    });
            }
        }
        if (const auto *window = qobject_cast<const QMainWindow *>(&m_model);
            window && window->centralWidget()) {
            m_part->steps.push_back(
                [number = kid(window->centralWidget())](QWidget *widget, const Kids &kids) {
                    static_cast<QMainWindow *>(widget)->setCentralWidget(kids[number]);
                });
        }
    }

    /// The buttons among the children that exclude each other.
    void readGroup()
    {
        std::vector<std::size_t> members;
        for (auto kid = m_kids.cbegin(); kid != m_kids.cend(); ++kid) {
            const auto *button = qobject_cast<const QAbstractButton *>(kid.key());
            if (button && button->group())
                members.push_back(*kid);
        }
        if (members.empty())
            return;
        m_part->steps.push_back([members](QWidget *widget, const Kids &kids) {
            auto *group = new QButtonGroup(widget);
            for (const std::size_t member : members)
                group->addButton(static_cast<QAbstractButton *>(kids[member]));
        });
    }

    void readSheet(const QString &sheet, QScrollBar *(QAbstractScrollArea::*bar)() const)
    {
        if (!sheet.isEmpty())
            m_part->barSheets.push_back({bar, sheet});
    }

    void readItems()
    {
        if (const auto *bar = qobject_cast<const QTabBar *>(&m_model))
            readTabs(*bar);
        if (const auto *tabs = qobject_cast<const QTabWidget *>(&m_model))
            readPages(*tabs);
        if (const auto *box = qobject_cast<const QComboBox *>(&m_model))
            readTexts(*box);
        if (const auto *list = qobject_cast<const QListWidget *>(&m_model))
            readRows(*list);
        if (const auto *tree = qobject_cast<const QTreeWidget *>(&m_model))
            readBranches(*tree);
        if (const auto *table = qobject_cast<const QTableWidget *>(&m_model))
            readCells(*table);
    }

    void readTabs(const QTabBar &bar)
    {
        QStringList texts;
        for (int i = 0; i < bar.count(); ++i)
            texts += bar.tabText(i);
        m_part->steps.push_back([texts](QWidget *widget, const Kids &) {
            for (const QString &text : texts)
                static_cast<QTabBar *>(widget)->addTab(text);
        });
    }

    void readPages(const QTabWidget &tabs)
    {
        for (int i = 0; i < tabs.count(); ++i) {
            m_part->steps.push_back([number = kid(tabs.widget(i)),
                                     text = tabs.tabText(i)](QWidget *widget, const Kids &kids) {
                static_cast<QTabWidget *>(widget)->addTab(kids[number], text);
            });
        }
        if (QWidget *corner = tabs.cornerWidget()) {
            m_part->steps.push_back([number = kid(corner)](QWidget *widget, const Kids &kids) {
                static_cast<QTabWidget *>(widget)->setCornerWidget(kids[number]);
            });
        }
    }

    void readTexts(const QComboBox &box)
    {
        QStringList texts;
        for (int i = 0; i < box.count(); ++i)
            texts += box.itemText(i);
        m_part->steps.push_back([texts](QWidget *widget, const Kids &) {
            static_cast<QComboBox *>(widget)->addItems(texts);
        });
    }

    void readRows(const QListWidget &list)
    {
        for (int i = 0; i < list.count(); ++i) {
            QListWidgetItem *item = list.item(i);
            const QWidget *row = list.itemWidget(item);
            m_part->steps.push_back(
                [text = item->text(), size = item->sizeHint(), hasRow = bool(row),
                 number = row ? kid(row) : 0](QWidget *widget, const Kids &kids) {
                    auto *list = static_cast<QListWidget *>(widget);
                    auto *item = new QListWidgetItem(text, list);
                    if (size.isValid())
                        item->setSizeHint(size);
                    if (hasRow)
                        list->setItemWidget(item, kids[number]);
                });
        }
    }

    void readBranches(const QTreeWidget &tree)
    {
        for (int i = 0; i < tree.topLevelItemCount(); ++i) {
            const QTreeWidgetItem *top = tree.topLevelItem(i);
            m_part->steps.push_back([text = top->text(0)](QWidget *widget, const Kids &) {
                new QTreeWidgetItem(static_cast<QTreeWidget *>(widget), {text});
            });
            for (int j = 0; j < top->childCount(); ++j)
                readLeaf(tree, top->child(j), i);
            m_part->steps.push_back(
                [i, isExpanded = top->isExpanded()](QWidget *widget, const Kids &) {
                    static_cast<QTreeWidget *>(widget)->topLevelItem(i)->setExpanded(isExpanded);
                });
        }
    }

    void readLeaf(const QTreeWidget &tree, const QTreeWidgetItem *leaf, int top)
    {
        const QWidget *row = tree.itemWidget(const_cast<QTreeWidgetItem *>(leaf), 0);
        const QVariant state = leaf->data(0, Qt::CheckStateRole);
        m_part->steps.push_back([text = leaf->text(0), size = leaf->sizeHint(0), state, top,
                                 hasRow = bool(row),
                                 number = row ? kid(row) : 0](QWidget *widget, const Kids &kids) {
            auto *tree = static_cast<QTreeWidget *>(widget);
            auto *item = new QTreeWidgetItem(tree->topLevelItem(top));
            if (!text.isEmpty())
                item->setText(0, text);
            if (size.isValid())
                item->setSizeHint(0, size);
            if (state.isValid())
                item->setCheckState(0, Qt::CheckState(state.toInt()));
            if (hasRow)
                tree->setItemWidget(item, 0, kids[number]);
        });
    }

    void readCells(const QTableWidget &table)
    {
        QStringList titles;
        QList<int> widths;
        for (int column = 0; column < table.columnCount(); ++column) {
            const QTableWidgetItem *title = table.horizontalHeaderItem(column);
            titles += title ? title->text() : QString();
            widths += table.columnWidth(column);
        }
        const bool isRowHeaderHidden = table.verticalHeader()->isHidden();
        const QHeaderView *header = table.horizontalHeader();
        m_part->steps.push_back([=, height = header->minimumHeight(),
                                 isEnabled = header->isEnabled(),
                                 isLastStretched = header->stretchLastSection(),
                                 policy = header->focusPolicy()](QWidget *widget, const Kids &) {
            auto *table = static_cast<QTableWidget *>(widget);
            table->setHorizontalHeaderLabels(titles);
            table->horizontalHeader()->setMinimumHeight(height);
            table->horizontalHeader()->setEnabled(isEnabled);
            table->horizontalHeader()->setStretchLastSection(isLastStretched);
            table->horizontalHeader()->setFocusPolicy(policy);
            if (isRowHeaderHidden)
                table->verticalHeader()->hide();
            for (int column = 0; column < widths.size(); ++column)
                table->setColumnWidth(column, widths.at(column));
        });
        for (int row = 0; row < table.rowCount(); ++row)
            readRow(table, row);
    }

    void readRow(const QTableWidget &table, int row)
    {
        m_part->steps.push_back(
            [row, height = table.rowHeight(row)](QWidget *widget, const Kids &) {
                static_cast<QTableWidget *>(widget)->setRowHeight(row, height);
            });
        for (int column = 0; column < table.columnCount(); ++column) {
            const QTableWidgetItem *item = table.item(row, column);
            if (!item)
                continue;
            m_part->steps.push_back(
                [row, column, text = item->text(),
                 alignment = item->textAlignment()](QWidget *widget, const Kids &) {
                    auto *item = new QTableWidgetItem(text);
                    item->setTextAlignment(alignment);
                    static_cast<QTableWidget *>(widget)->setItem(row, column, item);
                });
        }
    }

    MakeLayout readLayout(const QLayout &model)
    {
        using Add = std::function<void(QLayout *, const Kids &)>;
        const auto *grid = qobject_cast<const QGridLayout *>(&model);
        const auto *box = qobject_cast<const QBoxLayout *>(&model);
        if (const auto *form = qobject_cast<const QFormLayout *>(&model))
            return readForm(*form);
        if (!grid && !box) // a stack's; its pages are added by the stack
            return [](const Kids &) { return new QHBoxLayout; };
        std::vector<Add> adds;
        for (int i = 0; i < model.count(); ++i)
            adds.push_back(grid ? readGridItem(*grid, i) : readBoxItem(*box, i));
        const QMargins margins = model.contentsMargins();
        const QSize gaps = grid ? QSize(grid->horizontalSpacing(), grid->verticalSpacing())
                                : QSize(model.spacing(), model.spacing());
        const auto direction = box ? box->direction() : QBoxLayout::LeftToRight;
        return [=, isGrid = bool(grid)](const Kids &kids) -> QLayout * {
            QLayout *layout = nullptr;
            if (isGrid) {
                auto *own = new QGridLayout;
                own->setHorizontalSpacing(gaps.width());
                own->setVerticalSpacing(gaps.height());
                layout = own;
            } else {
                layout = new QBoxLayout(direction);
                layout->setSpacing(gaps.width());
            }
            layout->setContentsMargins(margins);
            for (const Add &add : adds)
                add(layout, kids);
            return layout;
        };
    }

    MakeLayout readForm(const QFormLayout &form)
    {
        struct Field {
            int row;
            QFormLayout::ItemRole role;
            std::size_t number;
        };
        std::vector<Field> fields;
        for (int i = 0; i < form.count(); ++i) {
            Field field{};
            form.getItemPosition(i, &field.row, &field.role);
            if (const QWidget *widget = form.itemAt(i)->widget()) {
                field.number = kid(widget);
                fields.push_back(field);
            }
        }
        return [fields, margins = form.contentsMargins(), horizontal = form.horizontalSpacing(),
                vertical = form.verticalSpacing()](const Kids &kids) {
            auto *layout = new QFormLayout;
            layout->setContentsMargins(margins);
            layout->setHorizontalSpacing(horizontal);
            layout->setVerticalSpacing(vertical);
            for (const Field &field : fields)
                layout->setWidget(field.row, field.role, kids[field.number]);
            return layout;
        };
    }

    /// What makes a layout's item that is no widget anew.
    std::function<QLayoutItem *(const Kids &)> readInner(QLayoutItem *item)
    {
        if (QLayout *inner = item->layout())
            return [make = readLayout(*inner)](const Kids &kids) { return make(kids); };
        const QSpacerItem *spacer = item->spacerItem();
        return [size = spacer->sizeHint(), policy = spacer->sizePolicy()](const Kids &) {
            return new QSpacerItem(size.width(), size.height(), policy.horizontalPolicy(),
                                   policy.verticalPolicy());
        };
    }

    std::function<void(QLayout *, const Kids &)> readGridItem(const QGridLayout &grid, int index)
    {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid.getItemPosition(index, &row, &column, &rows, &columns);
        QLayoutItem *item = grid.itemAt(index);
        const Qt::Alignment alignment = item->alignment();
        if (const QWidget *widget = item->widget()) {
            return [=, number = kid(widget)](QLayout *layout, const Kids &kids) {
                static_cast<QGridLayout *>(layout)->addWidget(kids[number], row, column, rows,
                                                              columns, alignment);
            };
        }
        return [=, make = readInner(item), isLayout = bool(item->layout())](QLayout *layout,
                                                                            const Kids &kids) {
            auto *grid = static_cast<QGridLayout *>(layout);
            QLayoutItem *inner = make(kids);
            if (isLayout)
                grid->addLayout(static_cast<QLayout *>(inner), row, column, rows, columns,
                                alignment);
            else
                grid->addItem(inner, row, column, rows, columns, alignment);
        };
    }

    std::function<void(QLayout *, const Kids &)> readBoxItem(const QBoxLayout &box, int index)
    {
        const int stretch = box.stretch(index);
        QLayoutItem *item = box.itemAt(index);
        const Qt::Alignment alignment = item->alignment();
        if (const QWidget *widget = item->widget()) {
            return [=, number = kid(widget)](QLayout *layout, const Kids &kids) {
                static_cast<QBoxLayout *>(layout)->addWidget(kids[number], stretch, alignment);
            };
        }
        return [=, make = readInner(item), isLayout = bool(item->layout())](QLayout *layout,
                                                                            const Kids &kids) {
            auto *box = static_cast<QBoxLayout *>(layout);
            QLayoutItem *inner = make(kids);
            if (isLayout)
                box->addLayout(static_cast<QLayout *>(inner), stretch);
            else
                box->addItem(inner);
        };
    }

    const QWidget &m_model;
    Twin::Part *m_part;
    QHash<const QWidget *, std::size_t> m_kids;
};

/// Whether setText() of the model's class elides the text.
bool isElided(const QWidget &model)
{
    static const QList<QByteArray> classes{"CheckBoxEx",   "RadioButtonEx", "LabelEx",
                                           "PushButtonEx", "ToolButtonEx",  "NQToolButton"};
    return classes.contains(model.metaObject()->className());
}

bool isLaidOut(const QLayout &layout, const QWidget &widget)
{
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem *item = layout.itemAt(i);
        if (item->widget() == &widget || (item->layout() && isLaidOut(*item->layout(), widget)))
            return true;
    }
    return false;
}

PartPointer readPart(const QWidget &model)
{
    auto part = std::make_unique<Twin::Part>();
    part->make = factoryOf(model);
    part->name = model.objectName();
    part->sheet = model.styleSheet();
    {
        const std::unique_ptr<QWidget> fresh(part->make(nullptr));
        part->properties = changedProperties(model, *fresh);
    }
    const QVariant text = model.property("text");
    if (isElided(model) && !text.toString().isEmpty())
        part->elidedText = text.toString();
    if (model.parentWidget() && model.parentWidget()->inherits("NQToolButton"))
        part->caption = text.toString();
    part->isDisabled = model.testAttribute(Qt::WA_ForceDisabled);
    part->isHidden = model.testAttribute(Qt::WA_WState_ExplicitShowHide)
        && model.testAttribute(Qt::WA_WState_Hidden);
    const QWidget *parent = model.parentWidget();
    part->isPlaced = !parent || !parent->layout() || !isLaidOut(*parent->layout(), model);
    part->place = model.geometry();
    Reader(model, part.get()).read();
    return part;
}

/// Sets the text as a control that elides it does.
void setElidedText(QWidget *widget, const QString &text)
{
    const QFontMetrics metrics(widget->font());
    const int available =
        widget->maximumWidth() < QWIDGETSIZE_MAX ? widget->width() : QWIDGETSIZE_MAX;
    widget->setToolTip(metrics.horizontalAdvance(text) > available ? text : QString());
    widget->setProperty("text", metrics.elidedText(text, Qt::ElideRight, available));
}

/// Makes the button around \a label as wide as it needs, in the font that the caption is shown in.
void fitToCaption(QWidget *label, const QString &caption)
{
    constexpr int least = 50;
    constexpr int padding = 5;
    label->ensurePolished();
    const int width = QFontMetrics(label->font()).horizontalAdvance(caption);
    label->parentWidget()->setFixedWidth(qMax(width, least) + 2 * padding);
}

QWidget *buildPart(const Twin::Part &part, QWidget *parent, Twin::Sheets sheets);

/// The content of \a area as a panel takes it: made by its host, complete, and given its sheet in
/// the order in which Qt reads it but once.
QWidget *buildContent(const Twin::Part &part, QScrollArea *area, Twin::Sheets sheets)
{
    QWidget *content = buildPart(part, nullptr, sheets);
    content->setParent(area->viewport());
    if (sheets == Twin::Sheets::Same && !part.sheet.isEmpty())
        content->setStyleSheet(part.sheet);
    return content;
}

QWidget *buildPart(const Twin::Part &part, QWidget *parent, Twin::Sheets sheets)
{
    QWidget *widget = part.make(parent);
    if (!part.name.isEmpty())
        widget->setObjectName(part.name);
    if (sheets == Twin::Sheets::Same) {
        if (!part.sheet.isEmpty() && !part.isContent)
            widget->setStyleSheet(part.sheet);
        for (const auto &[bar, sheet] : part.barSheets)
            (static_cast<QAbstractScrollArea *>(widget)->*bar)()->setStyleSheet(sheet);
    }
    for (const Property &each : part.properties)
        each.property.write(widget, each.value);
    if (part.isPlaced)
        widget->setGeometry(part.place);
    if (!part.elidedText.isEmpty())
        setElidedText(widget, part.elidedText);
    if (!part.caption.isEmpty())
        fitToCaption(widget, part.caption);
    if (part.isDisabled)
        widget->setEnabled(false);
    Kids kids;
    kids.reserve(part.children.size());
    for (const PartPointer &child : part.children) {
        kids.push_back(child->isContent
                           ? buildContent(*child, static_cast<QScrollArea *>(widget), sheets)
                           : buildPart(*child, widget, sheets));
    }
    for (const Step &step : part.steps)
        step(widget, kids);
    if (part.isHidden)
        widget->hide();
    return widget;
}

} // namespace

Twin::Twin(const QWidget &model)
    : m_root(readPart(model))
{
}

Twin::~Twin() = default;

QWidget *Twin::build(QWidget *parent, Sheets sheets) const
{
    return buildPart(*m_root, parent, sheets);
}
