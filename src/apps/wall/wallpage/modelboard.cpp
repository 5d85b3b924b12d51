#include "modelboard.h"

#include "cabinetclicks.h"
#include "document.h"
#include "model/cabinetrecord.h"
#include "model/commands.h"
#include "modelcountdialog.h"
#include "parts.h"
#include "selection.h"

#include <custommegbox.h>
#include <labelex.h>
#include <theme.h>
#include <toolbuttonex.h>
#include <widgetcontrollboard.h>

#include <QHBoxLayout>
#include <QTimer>

namespace wall
{

namespace
{

constexpr int modelSide = 40;
constexpr int portTextWidth = 220;
constexpr int proposedStock = 10;
constexpr int proposedRow = 8;

// What the strip's own buttons are known by.
const char leftArrowProperty[] = "isCabinateWidgetLeftBtn";
const char rightArrowProperty[] = "isCabinateWidgetRightBtn";
const char addRowProperty[] = "isAddRowCabnicateBtn";

/// The pictures of a button of the strip, which has none of its own.
QString pictureRules(const char *property, const char *picture)
{
    const auto rule = [property, picture](const char *state, const char *suffix) {
        return QStringLiteral("ToolButtonEx[%1=\"true\"]%2{border-image:"
                              "url(:/Resource/Images/globalResource/%3_%4.png);}")
            .arg(QLatin1String(property), QLatin1String(state), QLatin1String(picture),
                 QLatin1String(suffix));
    };
    return rule("", "normal") + rule(":hover", "hover") + rule(":pressed", "pressed")
        + rule(":disabled", "disable");
}

void applyModel(ToolButtonEx *button, const CabinetModel &model)
{
    const StructCabinet record = cabinetRecord(model, QString(), 0, 0);
    button->setMakerName(model.family);
    button->setCabinetName(model.name);
    // After the name, which is part of the tool tip that this sets.
    button->setCabinetSize(record.cabinetSize.width(), record.cabinetSize.height());
    button->setCabinetweight(record.cabinetweight);
    button->setCabinetpower(record.cabinetpower);
    button->setCabinetVoltage(record.cabinetVoltage);
    button->setCabinetuisize(record.cabinetuisize);
    button->setCabinetuiHsize(record.cabinetuiHsize);
    button->setCabinetPointspace(record.cabinetPointspace);
    button->setAccessibleName(model.name);
    button->update();
}

} // namespace

ModelBoard::ModelBoard(Document *document, Selection *selection, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_selection(selection)
    , m_clicks(new CabinetClicks(this))
{
    build();
    followProject();
    rebuild();
}

QVector<ToolButtonEx *> ModelBoard::modelButtons() const
{
    QVector<ToolButtonEx *> buttons;
    for (const QPointer<ToolButtonEx> &button : m_buttons)
        buttons.append(button);
    return buttons;
}

void ModelBoard::addStock()
{
    const QString title = QStringLiteral("Add cabinets");
    if (!hasPort(title))
        return;
    Project *project = m_document->project();
    const PortRef port = m_selection->port();
    const QPointer<ModelCountDialog> dialog =
        new ModelCountDialog(title, QStringLiteral("Add"), this);
    for (const QString &modelId : qAsConst(m_modelIds)) {
        const int most = maxStock - project->stockCount(port, modelId);
        if (most > 0)
            dialog->addModel(modelId, project->model(modelId)->name, most);
    }
    dialog->setProposedCount(proposedStock);
    if (!dialog->isEmpty() && dialog->exec() == QDialog::Accepted) {
        const QString modelId = dialog->modelId();
        const int count = project->stockCount(port, modelId) + dialog->count();
        const QString problem = stockProblem(*project, port, modelId, count);
        if (problem.isEmpty())
            m_document->push(new ChangeStockCommand(project, port, modelId, count));
        else
            CustomMegBox::waringMessageBox(window(), title, problem, QStringLiteral("OK"));
    }
    if (dialog)
        dialog->deleteLater();
}

void ModelBoard::requestRow()
{
    const QString title = QStringLiteral("Add row");
    if (!hasPort(title))
        return;
    const Project *project = m_document->project();
    const PortRef port = m_selection->port();
    const QPointer<ModelCountDialog> dialog =
        new ModelCountDialog(title, QStringLiteral("Place"), this);
    for (const QString &modelId : qAsConst(m_modelIds)) {
        const int left = project->leftCount(port, modelId);
        if (left > 0)
            dialog->addModel(modelId, project->model(modelId)->name, left);
    }
    dialog->setProposedCount(proposedRow);
    if (dialog->isEmpty()) {
        CustomMegBox::informationMessageBox(
            window(), title, QStringLiteral("No cabinet is left on %1.").arg(portText()),
            QStringLiteral("OK"));
    } else if (dialog->exec() == QDialog::Accepted) {
        Q_EMIT placeRowRequested(port, dialog->modelId(), dialog->count());
    }
    if (dialog)
        dialog->deleteLater();
}

void ModelBoard::build()
{
    m_board = new WidgetControllBoard(this);
    m_board->setFixedSize(m_board->sizeHint());
    m_board->setButtonGroupExLabelText(QStringLiteral("Cabinet models"));
    m_board->setIsAddCabient(true);
    m_board->setAddButtonTooltip(QStringLiteral("Add cabinets to the port"));
    m_board->setAddRowCabinetTooTip(QStringLiteral("Place a row of cabinets"));
    dressStrip();
    connect(m_board, &WidgetControllBoard::signal_addCabietsClicked, this, &ModelBoard::addStock);
    connect(m_board, &WidgetControllBoard::signal_addRowCabietsClicked, this,
            &ModelBoard::requestRow);
    connect(m_board, &WidgetControllBoard::signal_itemClicked, this,
            [this](int index) { requestModel(m_modelIds.value(index)); });
    connect(m_clicks, &CabinetClicks::chosenByKey, this, [this](ToolButtonEx *button) {
        requestModel(m_modelIds.value(m_buttons.indexOf(button)));
    });

    m_portName = parts::makeValue(portTextWidth, this);
    m_portCount = parts::makeValue(portTextWidth, this);
    m_portCount->setFontColor(theme::quietText);
    auto *texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addStretch();
    texts->addWidget(m_portName);
    texts->addWidget(m_portCount);
    texts->addStretch();
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(theme::margin);
    line->addWidget(m_board);
    line->addLayout(texts);
    line->addStretch();
}

void ModelBoard::followProject()
{
    const Project *project = m_document->project();
    connect(project, &Project::wasReset, this, &ModelBoard::rebuild);
    connect(project, &Project::modelChanged, this, &ModelBoard::updateModel);
    connect(project, &Project::senderChanged, this, &ModelBoard::showPort);
    connect(project, &Project::lineChanged, this, [this](const PortRef &port) {
        if (port == m_selection->port())
            showPort();
    });
    connect(project, &Project::stockChanged, this, [this](const PortRef &port) {
        if (port == m_selection->port())
            showAvailability();
    });
    connect(m_selection, &Selection::portChanged, this, &ModelBoard::showAvailability);
}

void ModelBoard::rebuild()
{
    m_modelIds = m_document->project()->modelIds();
    m_buttons.clear();
    QList<QWidget *> widgets;
    for (const QString &modelId : qAsConst(m_modelIds)) {
        auto *button = new ToolButtonEx(this, CabinetModelType, QString(), QString());
        button->setFixedSize(modelSide, modelSide);
        applyModel(button, *m_document->project()->model(modelId));
        m_clicks->watch(button);
        connect(button, &ToolButtonEx::notifyAddCabineModel, this, [this, modelId] {
            if (m_clicks->isClick())
                requestModel(modelId);
        });
        m_buttons.append(button);
        widgets.append(button);
    }
    fillStrip(widgets);
    showAvailability();
}

void ModelBoard::fillStrip(const QList<QWidget *> &buttons)
{
    m_board->setLsWidget(buttons);
    // The strip takes the keyboard away from its buttons; here they are used with it.
    for (QWidget *button : buttons)
        button->setFocusPolicy(Qt::TabFocus);
    // Between them the strip's own ground is to be seen, not that of the window.
    if (!buttons.isEmpty())
        buttons.constFirst()->parentWidget()->setAutoFillBackground(false);
}

/// Gives the strip's buttons what the library leaves to its host: pictures and names.
void ModelBoard::dressStrip()
{
    setStyleSheet(pictureRules(leftArrowProperty, "arrow/btn_L")
                  + pictureRules(rightArrowProperty, "arrow/btn_R")
                  + pictureRules(addRowProperty, "addCabinetRow/row"));
    const QList<ToolButtonEx *> buttons = m_board->findChildren<ToolButtonEx *>();
    for (ToolButtonEx *button : buttons) {
        if (button->property(leftArrowProperty).toBool())
            button->setAccessibleName(QStringLiteral("Scroll left"));
        else if (button->property(rightArrowProperty).toBool())
            button->setAccessibleName(QStringLiteral("Scroll right"));
        else
            button->setAccessibleName(button->toolTip());
    }
}

void ModelBoard::updateModel(const QString &modelId)
{
    const int index = m_modelIds.indexOf(modelId);
    if (index < 0 || !m_buttons.at(index))
        return;
    applyModel(m_buttons.at(index), *m_document->project()->model(modelId));
    // The popup's copies are made from the buttons; once for all changes of a series.
    if (!m_areCopiesOld) {
        m_areCopiesOld = true;
        QTimer::singleShot(0, this, &ModelBoard::renewCopies);
    }
}

void ModelBoard::renewCopies()
{
    m_areCopiesOld = false;
    QWidget *focus = m_board->focusWidget();
    const QList<QWidget *> buttons = m_board->lsWidget();
    fillStrip(buttons);
    if (focus && buttons.contains(focus))
        focus->setFocus();
}

void ModelBoard::showAvailability()
{
    const PortRef port = m_selection->port();
    const bool isAnyPort = m_document->project()->port(port) != nullptr;
    for (int i = 0; i < m_buttons.size(); ++i) {
        if (!m_buttons.at(i))
            continue;
        // Sets whether the button is enabled, too.
        m_buttons.at(i)->setCabinetCount(
            isAnyPort ? m_document->project()->leftCount(port, m_modelIds.at(i)) : 0);
        if (!isAnyPort)
            m_buttons.at(i)->setEnabled(true);
    }
    showPort();
}

void ModelBoard::showPort()
{
    const Project *project = m_document->project();
    const PortRef ref = m_selection->port();
    const Port *port = project->port(ref);
    if (!port) {
        m_portName->setText(QStringLiteral("No port chosen"));
        m_portCount->setText(QStringLiteral("Click a port at the left"));
        return;
    }
    int count = 0;
    for (const StockEntry &entry : port->stock)
        count += entry.count;
    m_portName->setText(portText());
    m_portCount->setText(QStringLiteral("%1 placed, %2 left")
                             .arg(project->line(ref).size())
                             .arg(count - project->line(ref).size()));
}

void ModelBoard::requestModel(const QString &modelId)
{
    const QString title = QStringLiteral("Place cabinet");
    const CabinetModel *model = m_document->project()->model(modelId);
    if (!model || !hasPort(title))
        return;
    const PortRef port = m_selection->port();
    // A copy in the popup can be clicked with none left, too.
    if (m_document->project()->leftCount(port, modelId) > 0) {
        Q_EMIT placeRequested(port, modelId);
    } else {
        CustomMegBox::informationMessageBox(
            window(), title, QStringLiteral("No %1 is left on %2.").arg(model->name, portText()),
            QStringLiteral("OK"));
    }
}

/// Whether a port is chosen; says so if none is.
bool ModelBoard::hasPort(const QString &purpose)
{
    if (m_document->project()->port(m_selection->port()))
        return true;
    CustomMegBox::informationMessageBox(window(), purpose,
                                        QStringLiteral("Choose a port of a sender first."),
                                        QStringLiteral("OK"));
    return false;
}

QString ModelBoard::portText() const
{
    const PortRef port = m_selection->port();
    const Sender *sender = m_document->project()->sender(port.senderId);
    return sender ? QStringLiteral("%1, port %2").arg(sender->name).arg(port.number) : QString();
}

} // namespace wall
