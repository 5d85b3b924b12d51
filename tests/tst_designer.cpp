// The Qt Designer plugin: what it tells of each widget, and what QUiLoader, uic and Qt Designer's
// own form editor make of it.

#include "designer/hostform.h"
#include "support/testcase.h"

#include <orvanecontrols/checkboxex.h>
#include <orvanecontrols/comboboxex.h>
#include <orvanecontrols/comboboxitem.h>
#include <orvanecontrols/customlistwidgetmulitem.h>
#include <orvanecontrols/equiplistwidget.h>
#include <orvanecontrols/listwidgettitle.h>
#include <orvanecontrols/nqtoolbutton.h>
#include <orvanecontrols/pushbuttonex.h>
#include <orvanecontrols/sliderex.h>
#include <orvanecontrols/sliderexmouse.h>
#include <orvanecontrols/tablewidgetcustom.h>
#include <orvanecontrols/tablewidgetex.h>
#include <orvanecontrols/toolbuttonex.h>
#include <orvanecontrols/treeitem.h>
#include <orvanecontrols/windowtitle.h>

#include <QAction>
#include <QBuffer>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QIcon>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QtDesigner/abstractintegration.h>
#include <QtDesigner/qdesigner_components.h>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtUiPlugin/customwidget.h>
#include <QtUiTools/QUiLoader>
#include <QVBoxLayout>

#include <memory>
#include <type_traits>

namespace
{

using Description = QDesignerCustomWidgetInterface;

const QString basic = "Orvane Basic Controls";
const QString cabinets = "Orvane Cabinets";
const QString windows = "Orvane Window and Dialogs";
const QString tabs = "Orvane Tabs";
const QString lists = "Orvane Lists, Tables and Trees";

struct Expected {
    QString name;
    QString group;
    QString base;
    QString objectName;
    QSize size;
    QString text; ///< The property "text" of the new widget, if its form sets it.
    QString builtAs; ///< The constructor's call, if it takes more than the parent.
};

const QVector<Expected> expectedWidgets = {
    {"CheckBoxEx", basic, "QCheckBox", "checkBoxEx", {140, 24}, "Check box", {}},
    {"RadioButtonEx", basic, "QRadioButton", "radioButtonEx", {140, 24}, "Radio button", {}},
    {"LabelEx", basic, "QLabel", "labelEx", {100, 24}, "Label", {}},
    {"PushButtonEx",
     basic,
     "QPushButton",
     "pushButtonEx",
     {90, 30},
     "Button",
     "PushButtonEx(parent, ActivatedBtn)"},
    {"SpinBoxEx", basic, "QSpinBox", "spinBoxEx", {90, 26}, {}, {}},
    {"DoubleSpinBoxEx", basic, "QDoubleSpinBox", "doubleSpinBoxEx", {90, 26}, {}, {}},
    {"LineEditEx", basic, "QLineEdit", "lineEditEx", {140, 26}, {}, {}},
    {"SliderEx", basic, "QSlider", "sliderEx", {160, 24}, {}, "SliderEx(parent, Qt::Horizontal)"},
    {"SliderExMouse",
     basic,
     "QSlider",
     "sliderExMouse",
     {160, 24},
     {},
     "SliderExMouse(parent, Qt::Horizontal)"},
    {"ComboBoxEx", basic, "QComboBox", "comboBoxEx", {120, 26}, {}, {}},
    {"ComboboxItem",
     basic,
     "QWidget",
     "comboboxItem",
     {120, 30},
     {},
     "ComboboxItem(parent, QPixmap(), QString(\"Item\"), 0)"},
    {"ToolButtonEx",
     cabinets,
     "QToolButton",
     "toolButtonEx",
     {120, 30},
     "Tool button",
     "ToolButtonEx(parent, DefaultType, QString(), QString())"},
    {"MutexButtonEx", cabinets, "QFrame", "mutexButtonEx", {156, 26}, {}, {}},
    {"ToolBarEx", cabinets, "QFrame", "toolBarEx", {320, 40}, {}, {}},
    {"WidgetWithScrollEx", cabinets, "QFrame", "widgetWithScrollEx", {180, 80}, {}, {}},
    {"ButtonGroupEx", cabinets, "QFrame", "buttonGroupEx", {230, 70}, {}, {}},
    {"WidgetControllBoard", cabinets, "QWidget", "widgetControllBoard", {230, 70}, {}, {}},
    {"WidgetContent", cabinets, "QWidget", "widgetContent", {200, 60}, {}, {}},
    {"ShapeWidget", cabinets, "QWidget", "shapeWidget", {200, 140}, {}, {}},
    {"ShapeWidgetContent", cabinets, "QWidget", "shapeWidgetContent", {160, 120}, {}, {}},
    {"Drawer", cabinets, "QWidget", "drawer", {260, 240}, {}, {}},
    {"DrawerItem", cabinets, "QWidget", "drawerItem", {260, 60}, {}, {}},
    {"DrawerItemContent", cabinets, "QWidget", "drawerItemContent", {260, 120}, {}, {}},
    {"DrawItemContentNew", cabinets, "QWidget", "drawItemContentNew", {260, 120}, {}, {}},
    {"RowLineItem", cabinets, "QWidget", "rowLineItem", {278, 74}, {}, {}},
    {"OfflinePortItemFrame", cabinets, "QFrame", "offlinePortItemFrame", {53, 32}, {}, {}},
    {"OfflinePortItemContentFrame",
     cabinets,
     "QFrame",
     "offlinePortItemContentFrame",
     {240, 80},
     {},
     {}},
    {"WindowTitle",
     windows,
     "QFrame",
     "windowTitle",
     {400, 30},
     {},
     "WindowTitle(QSize(400, 30), parent)"},
    {"CustomWidget", windows, "QWidget", "customWidget", {200, 30}, {}, {}},
    {"NQTabWidget", tabs, "QFrame", "nqTabWidget", {300, 200}, {}, {}},
    {"NQTabBar", tabs, "QFrame", "nqTabBar", {300, 30}, {}, {}},
    {"TabBarRd", tabs, "QTabBar", "tabBarRd", {300, 30}, {}, {}},
    {"NQToolButton",
     tabs,
     "QToolButton",
     "nqToolButton",
     {80, 70},
     "Button",
     "NQToolButton(parent, ImageAboveCaption)"},
    {"ListWidgetEx", lists, "QListWidget", "listWidgetEx", {240, 160}, {}, {}},
    {"CustomListWidgetItem", lists, "QWidget", "customListWidgetItem", {240, 34}, {}, {}},
    {"ListWidgetTitle",
     lists,
     "QWidget",
     "listWidgetTitle",
     {240, 32},
     {},
     "ListWidgetTitle(QString(\"Title\"), parent)"},
    {"EquipListWidget",
     lists,
     "QWidget",
     "equipListWidget",
     {480, 135},
     {},
     "EquipListWidget(QString(\"Devices\"), parent)"},
    {"CustomListWidgetMulItem",
     lists,
     "QWidget",
     "customListWidgetMulItem",
     {480, 34},
     {},
     "CustomListWidgetMulItem({\"COM3\", \"Sender\", \"4\", \"online\"}, parent, false)"},
    {"TreeViewEx", lists, "QTreeWidget", "treeViewEx", {220, 200}, {}, {}},
    {"TreeItem",
     lists,
     "QWidget",
     "treeItem",
     {120, 50},
     {},
     "TreeItem(QString(\"Cabinet\"), QSize(500, 500), parent)"},
    {"TableWidgetEx",
     lists,
     "QTabWidget",
     "tableWidgetEx",
     {300, 200},
     {},
     "TableWidgetEx(parent, PlainTable, QString(\"Screen\"))"},
    {"TableWidgetCustom",
     lists,
     "QTableWidget",
     "tableWidgetCustom",
     {400, 160},
     {},
     "TableWidgetCustom({}, {\"Sender\", \"Port\", \"Backup\", \"State\"}, 0, 4, parent)"},
    {"NewTableWidget", lists, "QTableWidget", "newTableWidget", {320, 160}, {}, {}},
};

const QStringList leftOut = {"CustomMessageBox", "ScrollBarEx", "WidgetBoard", "WindowFrame"};

// What the guide says of code made by uic: it cannot build these, as it passes the parent alone.
// A WindowTitle it can build, but one without its parts.
template <typename Widget>
constexpr bool isBuiltFromParentAlone = std::is_constructible_v<Widget, QWidget *>;
static_assert(!isBuiltFromParentAlone<PushButtonEx>);
static_assert(!isBuiltFromParentAlone<SliderEx>);
static_assert(!isBuiltFromParentAlone<SliderExMouse>);
static_assert(!isBuiltFromParentAlone<ComboboxItem>);
static_assert(!isBuiltFromParentAlone<ToolButtonEx>);
static_assert(!isBuiltFromParentAlone<NQToolButton>);
static_assert(!isBuiltFromParentAlone<ListWidgetTitle>);
static_assert(!isBuiltFromParentAlone<EquipListWidget>);
static_assert(!isBuiltFromParentAlone<CustomListWidgetMulItem>);
static_assert(!isBuiltFromParentAlone<TreeItem>);
static_assert(!isBuiltFromParentAlone<TableWidgetEx>);
static_assert(!isBuiltFromParentAlone<TableWidgetCustom>);
static_assert(isBuiltFromParentAlone<WindowTitle>);

QString readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The public classes: those that inherit, and with \a base false those that do not.
QSet<QString> publicClasses(bool base)
{
    const QRegularExpression heading("^class ORVANECONTROLS_EXPORT (\\w+)( : public \\w+)?$",
                                     QRegularExpression::MultilineOption);
    QSet<QString> classes;
    const QDir headers(PUBLIC_HEADERS);
    for (const QString &header : headers.entryList({"*.h"})) {
        QRegularExpressionMatchIterator match =
            heading.globalMatch(readFile(headers.filePath(header)));
        while (match.hasNext()) {
            const QRegularExpressionMatch found = match.next();
            if (found.captured(2).isEmpty() != base)
                classes.insert(found.captured(1));
        }
    }
    return classes;
}

/// A whole form around a widget's own \a domXml, at the place that Designer would give it.
QByteArray formOf(const Description *description)
{
    QDomDocument document;
    document.setContent(description->domXml());
    QDomElement ui = document.documentElement();
    ui.setAttribute("version", "4.0");
    QDomElement header = document.createElement("header");
    header.setAttribute("location", "global");
    header.appendChild(document.createTextNode(description->includeFile().mid(1).chopped(1)));
    ui.firstChildElement("customwidgets").firstChildElement().appendChild(header);
    QDomElement form = document.createElement("widget");
    form.setAttribute("class", "QWidget");
    form.setAttribute("name", "Form");
    const QDomElement widget = ui.firstChildElement("widget");
    ui.replaceChild(form, widget);
    form.appendChild(widget);
    QDomElement name = document.createElement("class");
    name.appendChild(document.createTextNode("Form"));
    ui.insertBefore(name, form);
    return document.toByteArray();
}

/// The classes of the form's child widgets in the text of a form.
QStringList childClasses(const QString &form)
{
    QDomDocument document;
    document.setContent(form);
    const QDomElement top = document.documentElement().firstChildElement("widget");
    QStringList classes;
    for (QDomElement widget = top.firstChildElement("widget"); !widget.isNull();
         widget = widget.nextSiblingElement("widget"))
        classes << widget.attribute("class");
    return classes;
}

/// The pixels that are not transparent.
int visiblePixels(const QImage &image)
{
    int visible = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            visible += qAlpha(image.pixel(x, y)) > 0;
    }
    return visible;
}

int colors(const QImage &image)
{
    QSet<QRgb> found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            found.insert(image.pixel(x, y));
    }
    return found.size();
}

/// Lets \a widget live: in a layout and out of it, seen, small and large.
void useWidget(QWidget *widget)
{
    QWidget *window = widget->window();
    window->show();
    QCoreApplication::processEvents();
    for (const QSize &size : {QSize(1, 1), QSize(900, 700), QSize(120, 60)}) {
        widget->resize(size);
        QCoreApplication::processEvents();
    }
    widget->hide();
    widget->show();
    widget->setEnabled(false);
    QVERIFY(!window->grab().isNull());
}

} // namespace

Q_DECLARE_METATYPE(Expected)

class TestDesigner : public TestCase
{
    Q_OBJECT

private:
    QDesignerCustomWidgetCollectionInterface *collection()
    {
        return qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_plugin.instance());
    }

    Description *description(const QString &name)
    {
        for (Description *widget : collection()->customWidgets()) {
            if (widget->name() == name)
                return widget;
        }
        return nullptr;
    }

    static void addWidgetColumn()
    {
        QTest::addColumn<Expected>("expected");
        for (const Expected &widget : expectedWidgets)
            QTest::newRow(qPrintable(widget.name)) << widget;
    }

    /// The construction of a title always prints them, see WindowTitle.
    void expectWarningsOf(const QString &name)
    {
        if (name == "WindowTitle") {
            expectWarning("QLayout: Attempting to add QLayout");
            expectWarning("QLayout::addChildLayout");
        }
    }

    /// Starts Qt Designer's own form editor, which finds the plugin as the program does. It gets no
    /// action editor, which Qt leaks a menu of.
    void startEditor()
    {
        // This plugin alone: what else is installed on a machine is no part of the test.
        QCoreApplication::setLibraryPaths({QDir(QFileInfo(DESIGNER_PLUGIN).path() + "/..").path()});
        QDesignerComponents::initializeResources();
        m_editor = QDesignerComponents::createFormEditor(&m_owner);
        m_editor->setTopLevel(&m_tools);
        QDesignerComponents::initializePlugins(m_editor);
        QDesignerComponents::createTaskMenu(m_editor, &m_owner);
        m_editor->setWidgetBox(QDesignerComponents::createWidgetBox(m_editor, &m_tools));
        m_editor->setPropertyEditor(QDesignerComponents::createPropertyEditor(m_editor, &m_tools));
        m_editor->setObjectInspector(
            QDesignerComponents::createObjectInspector(m_editor, &m_tools));
        new QDesignerIntegration(m_editor, &m_owner); // the editor knows it by itself
        m_editor->widgetBox()->setFileName(":/qt-project.org/widgetbox/widgetbox.xml");
        m_editor->widgetBox()->load();
    }

    QPluginLoader m_plugin{QString(DESIGNER_PLUGIN)};
    QObject m_owner; ///< Of the form editor, which has to outlive its tool windows.
    QWidget m_tools;
    QDesignerFormEditorInterface *m_editor = nullptr;

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(m_plugin.load(), qPrintable(m_plugin.errorString()));
        QVERIFY(collection());
        startEditor();
    }

    void showsTheseWidgetsInThisOrder()
    {
        QStringList expected;
        for (const Expected &widget : expectedWidgets)
            expected << widget.name;
        QStringList names;
        for (const Description *widget : collection()->customWidgets())
            names << widget->name();
        QCOMPARE(names, expected);
        QCOMPARE(collection()->customWidgets(), collection()->customWidgets());
    }

    void everyPublicWidgetIsShownOrLeftOutForAReason()
    {
        QSet<QString> shown;
        for (const Description *widget : collection()->customWidgets())
            shown.insert(widget->name());
        const QJsonObject reasons =
            m_plugin.metaData()["MetaData"].toObject()["LeftOut"].toObject();
        QCOMPARE(reasons.keys(), leftOut);
        for (const QString &name : leftOut) {
            QVERIFY2(reasons[name].toString().size() > 20, qPrintable(name));
            QVERIFY2(!shown.contains(name), qPrintable(name));
        }
        QCOMPARE(shown + QSet<QString>(leftOut.cbegin(), leftOut.cend()), publicClasses(true));
        // The public classes that inherit nothing are no widgets.
        QCOMPARE(publicClasses(false),
                 QSet<QString>({"CustomMegBox", "DefineCommonData", "StyleSheetBatch"}));
    }

    void describesTheWidget_data() { addWidgetColumn(); }

    void describesTheWidget()
    {
        QFETCH(Expected, expected);
        Description *widget = description(expected.name);
        QVERIFY(widget);
        QCOMPARE(widget->group(), expected.group);
        QCOMPARE(widget->isContainer(), expected.name == "TableWidgetEx");
        QVERIFY(widget->toolTip().size() > 10);
        QVERIFY2(!widget->toolTip().endsWith('.'), qPrintable(widget->toolTip()));
        QVERIFY(widget->whatsThis().startsWith("<h3>" + expected.name + "</h3>"));
        QVERIFY(widget->whatsThis().contains("<p>" + widget->toolTip() + ".</p>"));

        const QString header = expected.name.toLower() + ".h";
        QCOMPARE(widget->includeFile(), "<orvanecontrols/" + header + ">");
        QVERIFY2(QFile::exists(PUBLIC_HEADERS "/" + header), qPrintable(header));
        QVERIFY(readFile(PUBLIC_HEADERS "/" + header)
                    .contains("class ORVANECONTROLS_EXPORT " + expected.name + " : public "));
    }

    void saysHowItIsBuilt_data() { addWidgetColumn(); }

    void saysHowItIsBuilt()
    {
        QFETCH(Expected, expected);
        const Description *widget = description(expected.name);
        QVERIFY(widget);
        const QString whatsThis = widget->whatsThis();
        const QString guide = readFile(DESIGNER_GUIDE);
        QVERIFY(guide.contains("`" + expected.name + "`"));
        if (expected.builtAs.isEmpty()) {
            QVERIFY(!whatsThis.contains("<code>"));
            QVERIFY(!guide.contains("`" + expected.name + "("));
        } else {
            QVERIFY2(whatsThis.contains("<code>" + expected.builtAs.toHtmlEscaped() + "</code>"),
                     qPrintable(whatsThis));
            QVERIFY(guide.contains("| `" + expected.builtAs + "` |"));
        }
    }

    void guideNamesWhatIsLeftOut()
    {
        const QString guide = readFile(DESIGNER_GUIDE);
        for (const QString &name : leftOut)
            QVERIFY2(guide.contains("| `" + name + "` |"), qPrintable(name));
    }

    void iconIsVisibleAndItsOwn()
    {
        for (const int side : {22, 32}) {
            QHash<QString, QImage> seen;
            for (const Description *widget : collection()->customWidgets()) {
                const QIcon icon = widget->icon();
                const QImage image = icon.pixmap(side, side).toImage();
                QCOMPARE(image.size(), QSize(side, side));
                // The plate alone is nearly as large, and has hardly any colours.
                QVERIFY2(visiblePixels(image) > side * side * 3 / 4, qPrintable(widget->name()));
                QVERIFY2(colors(image) > 8, qPrintable(widget->name()));
                QVERIFY2(!seen.values().contains(image), qPrintable(widget->name()));
                seen.insert(widget->name(), image);
            }
        }
    }

    void formNamesClassBaseAndSize_data() { addWidgetColumn(); }

    void formNamesClassBaseAndSize()
    {
        QFETCH(Expected, expected);
        const Description *described = description(expected.name);
        QVERIFY(described);
        QDomDocument document;
        QString error;
        QVERIFY2(document.setContent(described->domXml(), &error), qPrintable(error));
        const QDomElement ui = document.documentElement();
        QCOMPARE(ui.tagName(), QString("ui"));
        const QDomElement widget = ui.firstChildElement("widget");
        QCOMPARE(widget.attribute("class"), expected.name);
        QCOMPARE(widget.attribute("name"), expected.objectName);
        const QDomElement geometry = widget.firstChildElement("property");
        QCOMPARE(geometry.attribute("name"), QString("geometry"));
        const QDomElement rect = geometry.firstChildElement("rect");
        QCOMPARE(rect.firstChildElement("width").text(), QString::number(expected.size.width()));
        QCOMPARE(rect.firstChildElement("height").text(), QString::number(expected.size.height()));
        const QDomElement custom =
            ui.firstChildElement("customwidgets").firstChildElement("customwidget");
        QCOMPARE(custom.firstChildElement("class").text(), expected.name);
        QCOMPARE(custom.firstChildElement("extends").text(), expected.base);
    }

    void formLoaderBuildsIt_data() { addWidgetColumn(); }

    void formLoaderBuildsIt()
    {
        QFETCH(Expected, expected);
        const Description *described = description(expected.name);
        QVERIFY(described);
        expectWarningsOf(expected.name);
        QUiLoader loader;
        loader.clearPluginPaths();
        QVERIFY(!loader.availableWidgets().contains(expected.name));
        loader.addPluginPath(QFileInfo(DESIGNER_PLUGIN).path());
        QVERIFY(loader.availableWidgets().contains(expected.name));

        QByteArray text = formOf(described);
        QBuffer buffer(&text);
        const std::unique_ptr<QWidget> form(loader.load(&buffer));
        QVERIFY2(form, qPrintable(loader.errorString()));
        auto *widget = form->findChild<QWidget *>(expected.objectName);
        QVERIFY(widget);
        QCOMPARE(QString(widget->metaObject()->className()), expected.name);
        QVERIFY(widget->inherits(qPrintable(expected.base)));
        QCOMPARE(widget->parentWidget(), form.get());
        QVERIFY(!widget->isWindow());
        if (!expected.text.isEmpty()) {
            QCOMPARE(widget->property("text").toString(), expected.text);
            widget->ensurePolished();
            QVERIFY2(widget->sizeHint().width() <= expected.size.width(), "the text is clipped");
        }
        QCOMPARE(widget->size(), expected.size);
        useWidget(widget);
    }

    void rowShowsTheTextsThatItIsBuiltWith_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("texts");

        QTest::newRow("ComboboxItem") << "ComboboxItem" << QStringList("Item");
        QTest::newRow("CustomListWidgetMulItem")
            << "CustomListWidgetMulItem" << QStringList({"COM3", "Sender", "4", "online"});
        QTest::newRow("TreeItem") << "TreeItem" << QStringList({"Cabinet", "500x500"});
    }

    void rowShowsTheTextsThatItIsBuiltWith()
    {
        QFETCH(QString, name);
        QFETCH(QStringList, texts);
        QUiLoader loader;
        loader.clearPluginPaths();
        loader.addPluginPath(QFileInfo(DESIGNER_PLUGIN).path());
        QByteArray text = formOf(description(name));
        QBuffer buffer(&text);
        const std::unique_ptr<QWidget> form(loader.load(&buffer));
        QVERIFY(form);
        form->show();
        const auto *row = form->findChild<QWidget *>(name.left(1).toLower() + name.mid(1));
        QVERIFY(row);
        QStringList found;
        for (const QLabel *label : row->findChildren<QLabel *>()) {
            if (label->text().isEmpty())
                continue;
            found << label->text();
            // Nothing of it is cut off, at the size at which the row comes into a form.
            QVERIFY2(row->rect().contains(label->geometry()), qPrintable(label->text()));
            const QSize needed = label->fontMetrics().size(Qt::TextSingleLine, label->text());
            QVERIFY2(label->width() >= needed.width(), qPrintable(label->text()));
            QVERIFY2(row->height() >= needed.height(), qPrintable(label->text()));
        }
        QCOMPARE(found, texts);
    }

    void pagesOfTabsComeWithTheForm()
    {
        QUiLoader loader;
        loader.clearPluginPaths();
        loader.addPluginPath(QFileInfo(DESIGNER_PLUGIN).path());
        QByteArray text = formOf(description("TableWidgetEx"));
        QBuffer buffer(&text);
        const std::unique_ptr<QWidget> form(loader.load(&buffer));
        QVERIFY(form);
        auto *pages = form->findChild<TableWidgetEx *>();
        QVERIFY(pages);
        QCOMPARE(pages->count(), 2);
        QCOMPARE(pages->tabText(0), QString("Screen 1"));
        QCOMPARE(pages->tabText(1), QString("Screen 2"));
        QCOMPARE(pages->widget(1)->objectName(), QString("screen2"));
    }

    void livesWithAndWithoutAParent_data() { addWidgetColumn(); }

    void livesWithAndWithoutAParent()
    {
        QFETCH(Expected, expected);
        Description *factory = description(expected.name);
        QVERIFY(factory);
        for (int i = 0; i < 4; ++i)
            expectWarningsOf(expected.name);

        const std::unique_ptr<QWidget> alone(factory->createWidget(nullptr));
        QCOMPARE(alone->parent(), nullptr);
        QCOMPARE(QString(alone->metaObject()->className()), expected.name);
        useWidget(alone.get());

        auto form = std::make_unique<QWidget>();
        const QPointer<QWidget> first = factory->createWidget(form.get());
        QCOMPARE(first->parentWidget(), form.get());
        useWidget(first);
        delete first;
        QVERIFY(form->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly).isEmpty());

        const QPointer<QWidget> second = factory->createWidget(form.get());
        const QPointer<QWidget> third = factory->createWidget(form.get());
        auto *layout = new QVBoxLayout(form.get());
        layout->addWidget(second);
        layout->addWidget(third);
        useWidget(second);
        form.reset();
        QVERIFY(!second);
        QVERIFY(!third);
    }

    void designerHasTheGroupsInItsWidgetBox()
    {
        QMap<QString, QStringList> groups;
        const QDesignerWidgetBoxInterface *box = m_editor->widgetBox();
        for (int i = 0; i < box->categoryCount(); ++i) {
            const QDesignerWidgetBoxInterface::Category category = box->category(i);
            for (int j = 0; j < category.widgetCount(); ++j)
                groups[category.name()] << category.widget(j).name();
        }
        for (const Expected &widget : expectedWidgets)
            QVERIFY2(groups[widget.group].removeOne(widget.name), qPrintable(widget.name));
        for (const QString &group : {basic, cabinets, windows, tabs, lists})
            QCOMPARE(groups[group], QStringList());
    }

    void designerShowsSavesAndCopiesIt_data() { addWidgetColumn(); }

    void designerShowsSavesAndCopiesIt()
    {
        QFETCH(Expected, expected);
        const Description *described = description(expected.name);
        QVERIFY(described);
        expectWarningsOf(expected.name);
        expectWarningsOf(expected.name); // the copy's
        QDesignerFormWindowManagerInterface *manager = m_editor->formWindowManager();
        const std::unique_ptr<QDesignerFormWindowInterface> window(manager->createFormWindow());
        QByteArray text = formOf(described);
        QBuffer buffer(&text);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        QString error;
        QVERIFY2(window->setContents(&buffer, &error), qPrintable(error));
        manager->setActiveFormWindow(window.get());
        window->show();
        auto *widget = window->mainContainer()->findChild<QWidget *>(expected.objectName);
        QVERIFY(widget);
        QCOMPARE(QString(widget->metaObject()->className()), expected.name);
        QVERIFY(window->isManaged(widget));
        QCOMPARE(widget->size(), expected.size);

        window->clearSelection();
        window->selectWidget(widget);
        manager->action(QDesignerFormWindowManagerInterface::CopyAction)->trigger();
        window->clearSelection();
        window->selectWidget(window->mainContainer()); // or tabs would take the copy as their own
        manager->action(QDesignerFormWindowManagerInterface::PasteAction)->trigger();
        const QString form = window->contents();
        QCOMPARE(childClasses(form), QStringList({expected.name, expected.name}));
        QVERIFY(form.contains("<header location=\"global\">orvanecontrols/"
                              + expected.name.toLower() + ".h</header>"));
        QVERIFY(form.contains("<extends>" + expected.base + "</extends>"));
        manager->action(QDesignerFormWindowManagerInterface::DeleteAction)->trigger();
        QCOMPARE(childClasses(window->contents()), QStringList(expected.name));
    }

    // Compiling the form says that each include file is right, and that a parent is enough.
    void codeOfUicBuildsWhatTheFormLoaderBuilds()
    {
        expectWarning(
            "'MainButton'"); // the promoted class is the host's, and unknown to the loader
        const HostForm compiled;

        QUiLoader loader;
        loader.clearPluginPaths();
        loader.addPluginPath(QFileInfo(DESIGNER_PLUGIN).path());
        QFile file(HOST_FORM);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const std::unique_ptr<QWidget> loaded(loader.load(&file));
        QVERIFY2(loaded, qPrintable(loader.errorString()));

        const QWidget *loadedForm = loaded.get();

        int found = 0;
        for (const Expected &expected : expectedWidgets) {
            if (!expected.builtAs.isEmpty())
                continue;
            ++found;
            for (const QWidget *form : {static_cast<const QWidget *>(&compiled), loadedForm}) {
                const auto *widget = form->findChild<QWidget *>(expected.objectName);
                QVERIFY2(widget, qPrintable(expected.name));
                QCOMPARE(QString(widget->metaObject()->className()), expected.name);
            }
        }
        QCOMPARE(found, 30);
        QCOMPARE(compiled.findChild<CheckBoxEx *>()->text(), QString("Mirror the wall"));
        QCOMPARE(loadedForm->findChild<QCheckBox *>()->text(), QString("Mirror the wall"));
        QCOMPARE(compiled.findChild<ComboBoxEx *>()->count(), 2);
        QCOMPARE(loadedForm->findChild<ComboBoxEx *>()->itemText(1), QString("BGR"));
        // Promoted: the host's class in the host's program, its base class elsewhere.
        const auto *main = compiled.findChild<QWidget *>("mainButton");
        QVERIFY(main);
        QCOMPARE(QString(main->metaObject()->className()), QString("MainButton"));
        const auto *base = loadedForm->findChild<QPushButton *>("mainButton");
        QVERIFY(base);
        QCOMPARE(QString(base->metaObject()->className()), QString("PushButtonEx"));
        QCOMPARE(base->text(), QString("Send"));
    }
};

ORVANE_TEST_MAIN(TestDesigner)

#include "tst_designer.moc"
