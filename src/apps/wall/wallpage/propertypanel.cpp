#include "propertypanel.h"

#include "document.h"
#include "model/commands.h"
#include "numberfield.h"
#include "parts.h"
#include "selection.h"

#include <labelex.h>
#include <theme.h>

#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QTimer>
#include <QUndoStack>

#include <algorithm>
#include <optional>

namespace wall
{

namespace
{

constexpr int panelWidth = 232;
constexpr int columns = 2;
constexpr int captionWidth = 64;
constexpr int valueWidth = panelWidth - 2 * theme::margin - theme::gap - captionWidth;
constexpr int commandWidth = (panelWidth - 2 * theme::margin - theme::gap) / columns;
constexpr int quarterTurn = 90;
constexpr int lastDegree = 359;
constexpr int seriesPause = 1000; ///< Milliseconds without a step, after which a series is over.
constexpr double wattsInKilowatt = 1000.0;
const QString various = QStringLiteral("Various");

/// What all \a ids have in common by \a property, nothing if they differ or there are none.
template <typename Property>
auto commonOf(const CabinetIds &ids, const Property &property)
    -> std::optional<decltype(property(0))>
{
    std::optional<decltype(property(0))> common;
    for (const CabinetId id : ids) {
        const auto value = property(id);
        if (common && *common != value)
            return std::nullopt;
        common = value;
    }
    return common;
}

QString sizeText(QSize size)
{
    return QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
}

LabelEx *addText(QGridLayout *grid, const QString &caption)
{
    QWidget *parent = grid->parentWidget();
    QLabel *label = theme::makeQuietLabel(caption, parent);
    label->setFixedWidth(captionWidth);
    LabelEx *value = parts::makeValue(valueWidth, parent);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(value, row, 1);
    return value;
}

NumberField *addNumber(QGridLayout *grid, const QString &caption, int least, int greatest)
{
    QWidget *parent = grid->parentWidget();
    auto *field = new NumberField(parent);
    field->setRange(least, greatest);
    field->setFixedWidth(valueWidth);
    field->setAccessibleName(caption);
    QLabel *label = theme::makeQuietLabel(caption, parent);
    label->setBuddy(field);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
    return field;
}

QGridLayout *makeGrid(QWidget *parent, int spacing)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(theme::gap);
    grid->setVerticalSpacing(spacing);
    static_cast<QVBoxLayout *>(parent->layout())->addLayout(grid);
    return grid;
}

} // namespace

PropertyPanel::PropertyPanel(Document *document, Selection *selection, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_selection(selection)
    , m_seriesPause(new QTimer(this))
{
    build();
    followFields();
    followProject();
    showSelection();
    showTotals();
}

PropertyPanel::~PropertyPanel()
{
    // A field that loses the focus as it goes still ends its series.
    for (NumberField *field : {m_x, m_y, m_rotation})
        field->disconnect(this);
}

void PropertyPanel::rotateBy(int degrees)
{
    rotateEach(degrees, newGesture());
}

void PropertyPanel::arrange(Arrangement arrangement)
{
    const QVector<CabinetPosition> targets =
        arranged(*m_document->project(), selected(), arrangement);
    if (!targets.isEmpty())
        push(new MoveCabinetsCommand(m_document->project(), targets));
}

void PropertyPanel::removeCabinets()
{
    const CabinetIds ids = selected();
    if (!ids.isEmpty())
        push(new RemoveCabinetsCommand(m_document->project(), ids));
}

void PropertyPanel::build()
{
    auto *content = new QWidget;
    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(theme::margin, theme::margin, theme::margin, theme::margin);
    column->setSpacing(theme::margin);

    m_heading = theme::makeHeading(QString(), content);
    m_heading->setFixedHeight(theme::controlHeight); // as high as the heads of the other panels
    column->addWidget(m_heading);
    addProperties(content);
    addCommands(content);
    column->addStretch();
    column->addWidget(theme::makeHeading(QStringLiteral("Whole wall"), content));
    addTotals(content);

    auto *frame = new QVBoxLayout(this);
    frame->setContentsMargins(0, 0, 0, 0);
    frame->addWidget(parts::makeScrollArea(content, this));
    setFixedWidth(panelWidth);
}

void PropertyPanel::addProperties(QWidget *content)
{
    QGridLayout *texts = makeGrid(content, 0);
    m_model = addText(texts, QStringLiteral("Model"));
    m_size = addText(texts, QStringLiteral("Size"));
    m_port = addText(texts, QStringLiteral("Port"));
    m_place = addText(texts, QStringLiteral("Data line"));

    QGridLayout *numbers = makeGrid(content, theme::gap);
    m_x = addNumber(numbers, QStringLiteral("X"), -maxCoordinate, maxCoordinate);
    m_y = addNumber(numbers, QStringLiteral("Y"), -maxCoordinate, maxCoordinate);
    m_rotation = addNumber(numbers, QStringLiteral("Rotation"), 0, lastDegree);
    m_rotation->setWrapping(true);
}

void PropertyPanel::addCommands(QWidget *content)
{
    QGridLayout *grid = makeGrid(content, theme::gap);
    const auto add = [this, grid, content](const QString &text, auto action) {
        PushButtonEx *button = theme::makeButton(text, NoActivatedBtn, content, commandWidth);
        connect(button, &PushButtonEx::clicked, this, action);
        grid->addWidget(button, grid->count() / columns, grid->count() % columns);
        return button;
    };
    m_commandsForOne = {
        add(QStringLiteral("Turn left"), [this] { rotateBy(-quarterTurn); }),
        add(QStringLiteral("Turn right"), [this] { rotateBy(quarterTurn); }),
    };
    m_commandsForSeveral = {
        add(QStringLiteral("Align left"), [this] { arrange(Arrangement::LeftEdges); }),
        add(QStringLiteral("Align top"), [this] { arrange(Arrangement::TopEdges); }),
        add(QStringLiteral("In a row"), [this] { arrange(Arrangement::Row); }),
        add(QStringLiteral("In a column"), [this] { arrange(Arrangement::Column); }),
    };
    m_commandsForOne.append(add(QStringLiteral("Delete"), [this] { removeCabinets(); }));
}

void PropertyPanel::addTotals(QWidget *content)
{
    QGridLayout *grid = makeGrid(content, 0);
    m_totalCabinets = addText(grid, QStringLiteral("Cabinets"));
    m_totalPixels = addText(grid, QStringLiteral("Pixels"));
    m_totalWeight = addText(grid, QStringLiteral("Weight"));
    m_totalPower = addText(grid, QStringLiteral("Power"));
}

void PropertyPanel::followFields()
{
    connect(m_x, &NumberField::numberTyped, this, [this](int x) { moveTo(Qt::Horizontal, x); });
    connect(m_y, &NumberField::numberTyped, this, [this](int y) { moveTo(Qt::Vertical, y); });
    connect(m_rotation, &NumberField::numberTyped, this, &PropertyPanel::rotateTo);
    connect(m_x, &NumberField::numberStepped, this,
            [this](int steps) { moveBy(QPoint(steps, 0), gestureOf(m_x)); });
    connect(m_y, &NumberField::numberStepped, this,
            [this](int steps) { moveBy(QPoint(0, steps), gestureOf(m_y)); });
    connect(m_rotation, &NumberField::numberStepped, this,
            [this](int steps) { rotateEach(steps, gestureOf(m_rotation)); });
    for (const NumberField *field : {m_x, m_y, m_rotation})
        connect(field, &NumberField::seriesEnded, this, &PropertyPanel::endSeries);
    m_seriesPause->setSingleShot(true);
    m_seriesPause->setInterval(seriesPause);
    connect(m_seriesPause, &QTimer::timeout, this, &PropertyPanel::endSeries);
}

void PropertyPanel::followProject()
{
    const Project *project = m_document->project();
    connect(m_selection, &Selection::cabinetsChanged, this, [this] {
        endSeries();
        showSoon();
    });
    for (const auto change : {&Project::cabinetsChanged, &Project::cabinetsInserted})
        connect(project, change, this, &PropertyPanel::showSoon);
    connect(project, &Project::wasReset, this, &PropertyPanel::showSoon);
    connect(project, &Project::lineChanged, this, &PropertyPanel::showSoon);
    connect(project, &Project::modelChanged, this, &PropertyPanel::showSoon);
    connect(project, &Project::senderChanged, this, &PropertyPanel::showSoon);
    connect(project, &Project::wasReset, this, &PropertyPanel::showTotals);
    connect(project, &Project::totalsChanged, this, &PropertyPanel::showTotals);
    connect(m_document->undoStack(), &QUndoStack::indexChanged, this, [this] {
        if (!m_isPushing)
            endSeries();
    });
}

/// Several changes at a time are shown once.
void PropertyPanel::showSoon()
{
    if (m_isShowPending)
        return;
    m_isShowPending = true;
    QTimer::singleShot(0, this, &PropertyPanel::showSelection);
}

void PropertyPanel::showSelection()
{
    m_isShowPending = false;
    const CabinetIds ids = selected();
    if (ids.isEmpty())
        m_heading->setText(QStringLiteral("Nothing selected"));
    else if (ids.size() == 1)
        m_heading->setText(QStringLiteral("Cabinet"));
    else
        m_heading->setText(QStringLiteral("%1 cabinets").arg(ids.size()));
    showTexts(ids);
    showNumbers(ids);
    for (PushButtonEx *button : qAsConst(m_commandsForOne))
        button->setEnabled(!ids.isEmpty());
    for (PushButtonEx *button : qAsConst(m_commandsForSeveral))
        button->setEnabled(ids.size() > 1);
}

void PropertyPanel::showTexts(const CabinetIds &ids)
{
    const Project *project = m_document->project();
    const QString otherwise = ids.isEmpty() ? QString() : various;

    const auto modelId =
        commonOf(ids, [project](CabinetId id) { return project->cabinet(id)->modelId; });
    const CabinetModel *model = modelId ? project->model(*modelId) : nullptr;
    m_model->setText(model ? model->name : otherwise);
    const auto size = commonOf(ids, [project](CabinetId id) {
        return project->model(project->cabinet(id)->modelId)->size;
    });
    m_size->setText(size ? sizeText(*size) : otherwise);

    const auto port = commonOf(ids, [project](CabinetId id) { return project->cabinet(id)->port; });
    const Sender *sender = port ? project->sender(port->senderId) : nullptr;
    m_port->setText(sender ? QStringLiteral("%1, port %2").arg(sender->name).arg(port->number)
                           : otherwise);
    if (ids.size() == 1 && port) {
        const CabinetIds line = project->line(*port);
        m_place->setText(
            QStringLiteral("%1 of %2").arg(line.indexOf(ids.constFirst()) + 1).arg(line.size()));
    } else {
        m_place->setText(otherwise);
    }
}

void PropertyPanel::showNumbers(const CabinetIds &ids)
{
    const Project *project = m_document->project();
    const auto show = [&ids](NumberField *field, auto property) {
        field->setEnabled(!ids.isEmpty());
        const auto common = commonOf(ids, property);
        field->showNumber(common || ids.isEmpty() ? common.value_or(0) : property(ids.constFirst()),
                          !common);
    };
    show(m_x, [project](CabinetId id) { return project->cabinet(id)->position.x(); });
    show(m_y, [project](CabinetId id) { return project->cabinet(id)->position.y(); });
    show(m_rotation, [project](CabinetId id) { return project->cabinet(id)->rotation; });
}

void PropertyPanel::showTotals()
{
    const Totals totals = m_document->project()->totals();
    const QLocale locale(QLocale::English);
    m_totalCabinets->setText(locale.toString(totals.cabinets));
    m_totalPixels->setText(locale.toString(totals.pixels));
    m_totalWeight->setText(QStringLiteral("%1 kg").arg(locale.toString(totals.weight, 'f', 1)));
    m_totalPower->setText(
        QStringLiteral("%1 kW").arg(locale.toString(totals.power / wattsInKilowatt, 'f', 2)));
}

void PropertyPanel::moveTo(Qt::Orientation direction, int coordinate)
{
    QVector<CabinetPosition> targets;
    const CabinetIds ids = selected();
    for (const CabinetId id : ids) {
        const QPoint before = m_document->project()->cabinet(id)->position;
        const QPoint after = direction == Qt::Horizontal ? QPoint(coordinate, before.y())
                                                         : QPoint(before.x(), coordinate);
        if (after != before)
            targets.append({id, after});
    }
    if (!targets.isEmpty())
        push(new MoveCabinetsCommand(m_document->project(), targets));
    showSelection();
}

void PropertyPanel::moveBy(QPoint delta, int gesture)
{
    const CabinetIds ids = selected();
    const QPoint possible = possibleMove(*m_document->project(), ids, delta);
    if (!ids.isEmpty() && !possible.isNull())
        push(new MoveCabinetsCommand(m_document->project(), ids, possible, gesture));
    showSelection();
}

void PropertyPanel::rotateTo(int degrees)
{
    QVector<CabinetRotation> targets;
    const CabinetIds ids = selected();
    for (const CabinetId id : ids) {
        if (m_document->project()->cabinet(id)->rotation != degrees)
            targets.append({id, degrees});
    }
    if (!targets.isEmpty())
        push(new RotateCabinetsCommand(m_document->project(), targets));
    showSelection();
}

void PropertyPanel::rotateEach(int degrees, int gesture)
{
    QVector<CabinetRotation> targets;
    const CabinetIds ids = selected();
    for (const CabinetId id : ids) {
        const int before = m_document->project()->cabinet(id)->rotation;
        targets.append({id, normalizedRotation(before + degrees)});
    }
    if (!targets.isEmpty())
        push(new RotateCabinetsCommand(m_document->project(), targets, gesture));
    showSelection();
}

void PropertyPanel::push(QUndoCommand *command)
{
    m_isPushing = true;
    m_document->push(command);
    m_isPushing = false;
}

int PropertyPanel::gestureOf(const NumberField *field)
{
    if (m_seriesField != field) {
        m_seriesField = field;
        m_seriesGesture = newGesture();
    }
    m_seriesPause->start();
    return m_seriesGesture;
}

void PropertyPanel::endSeries()
{
    m_seriesField = nullptr;
    m_seriesPause->stop();
}

/// In a fixed order, by which steps of a series are known to concern the same cabinets.
CabinetIds PropertyPanel::selected() const
{
    CabinetIds ids = m_selection->cabinets();
    std::sort(ids.begin(), ids.end());
    return ids;
}

} // namespace wall
