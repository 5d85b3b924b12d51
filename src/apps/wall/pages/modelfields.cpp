#include "modelfields.h"

#include "document.h"
#include "look.h"
#include "model/commands.h"

#include <comboboxex.h>
#include <doublespinboxex.h>
#include <lineeditex.h>
#include <spinboxex.h>

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QUndoStack>

namespace wall
{

namespace
{

// The fields take more than is possible, so that the reason can be told.
constexpr int greatestPixels = 999999;
// So that the texts of all kinds of fields begin below each other.
constexpr int editMargin = 3;
constexpr int boxMargin = 3;
constexpr int fieldWidth = 36 * look::unit;

template <class Box> void initNumberBox(Box *box)
{
    box->setFixedHeight(look::controlHeight);
    box->setBackgroundColor(look::well);
    box->setFontColor(look::text);
    box->setFocusPolicy(Qt::StrongFocus);
    box->setKeyboardTracking(false);
    if (auto *edit = box->template findChild<QLineEdit *>())
        edit->setTextMargins(boxMargin, 0, 0, 0);
}

} // namespace

ModelFields::ModelFields(Document *document, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_layout(new QGridLayout(this))
    , m_name(addName())
    , m_family(addFamily())
    , m_width(
          addPixels(tr("Width"), [](CabinetModel &model) -> int & { return model.size.rwidth(); }))
    , m_height(addPixels(tr("Height"),
                         [](CabinetModel &model) -> int & { return model.size.rheight(); }))
    , m_pitch(addNumber(tr("Pitch"), tr("mm"), 3, 10 * maxPitch, &CabinetModel::pitch))
    , m_weight(addNumber(tr("Weight"), tr("kg"), 2, 10 * maxWeight, &CabinetModel::weight))
    , m_power(addNumber(tr("Power"), tr("W"), 1, 10 * maxPower, &CabinetModel::power))
    , m_voltage(addNumber(tr("Voltage"), tr("V"), 1, 10 * maxVoltage, &CabinetModel::voltage))
    , m_problem(look::makeWrappedLabel(QString(), this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setHorizontalSpacing(look::gap);
    m_layout->setVerticalSpacing(look::gap);
    m_layout->setColumnStretch(1, 1);

    look::setTextColor(m_problem, look::warning);
    m_problem->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_problem->setMinimumHeight(3 * fontMetrics().lineSpacing()); // the fields stay where they are
    const int lastRow = m_layout->rowCount();
    m_layout->addWidget(m_problem, lastRow, 0, 1, 3);
    m_layout->setRowStretch(lastRow, 1);

    Project *project = document->project();
    connect(project, &Project::modelChanged, this, [this](const QString &modelId) {
        showFamilies();
        if (modelId == m_modelId)
            showValues();
    });
    connect(project, &Project::wasReset, this, [this] {
        if (!m_document->project()->model(m_modelId))
            m_modelId.clear();
        endGesture();
        showProblem(QString());
        showFamilies();
        showValues();
    });
    showFamilies();
    showValues();
}

QString ModelFields::modelId() const
{
    return m_modelId;
}

void ModelFields::setModelId(const QString &modelId)
{
    m_modelId = m_document->project()->model(modelId) ? modelId : QString();
    endGesture();
    showProblem(QString());
    showValues();
}

QString ModelFields::problem() const
{
    return m_problem->text();
}

LineEditEx *ModelFields::addName()
{
    auto *edit = new LineEditEx(this);
    edit->setFixedHeight(look::controlHeight);
    edit->setBackgroundColor(look::well);
    edit->setBorderWidth(0);
    edit->setTextMargins(editMargin, 0, editMargin, 0);
    edit->setStrToolTips(tr("File names cannot have / \\ : < | \" * > ?"));
    connect(edit, &QLineEdit::textEdited, this, [this, edit](const QString &text) {
        if (text.trimmed().isEmpty())
            showProblem(tr("A model has to have a name."));
        else
            this->edit(edit, [&text](CabinetModel &model) { model.name = text; });
    });
    connect(edit, &QLineEdit::editingFinished, this, [this] {
        endGesture();
        showValues();
    });
    addRow(tr("Name"), edit);
    return edit;
}

ComboBoxEx *ModelFields::addFamily()
{
    auto *box = new ComboBoxEx(this);
    box->setFixedHeight(look::controlHeight);
    box->setBgCurrentItemColor(look::well);
    box->setBgHoverItemColor(look::raised);
    box->setBorderWidth(0);
    box->setBorderHoverWidth(0);
    box->setBorderRadius(0);
    box->setFocusPolicy(Qt::StrongFocus);
    connect(box, QOverload<int>::of(&QComboBox::activated), this, [this, box](int index) {
        const QString family = box->itemData(index).toString();
        edit(box, [&family](CabinetModel &model) { model.family = family; });
    });
    addRow(tr("Family"), box);
    return box;
}

SpinBoxEx *ModelFields::addPixels(const QString &name,
                                  const std::function<int &(CabinetModel &)> &value)
{
    auto *box = new SpinBoxEx(this);
    initNumberBox(box);
    box->setRange(0, greatestPixels);
    connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, [this, box, value](int number) {
        edit(box, [&value, number](CabinetModel &model) { value(model) = number; });
    });
    connect(box, &QSpinBox::editingFinished, this, &ModelFields::endGesture);
    addRow(name, box, tr("px"));
    return box;
}

DoubleSpinBoxEx *ModelFields::addNumber(const QString &name, const QString &unit, int decimals,
                                        double limit, double CabinetModel::*value)
{
    auto *box = new DoubleSpinBoxEx(this);
    initNumberBox(box);
    box->setDecimals(decimals);
    box->setSingleStep(0.1);
    box->setRange(0.0, limit);
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this, box, value](double number) {
                edit(box, [value, number](CabinetModel &model) { model.*value = number; });
            });
    connect(box, &QDoubleSpinBox::editingFinished, this, &ModelFields::endGesture);
    addRow(name, box, unit);
    return box;
}

void ModelFields::addRow(const QString &name, QWidget *field, const QString &unit)
{
    const int row = m_layout->rowCount();
    auto *label = new QLabel(name, this);
    label->setBuddy(field);
    field->setMinimumWidth(fieldWidth);
    field->setAccessibleName(unit.isEmpty() ? name : QStringLiteral("%1, %2").arg(name, unit));
    field->installEventFilter(this);
    m_layout->addWidget(label, row, 0);
    m_layout->addWidget(field, row, 1);
    m_layout->addWidget(new QLabel(unit, this), row, 2);
}

void ModelFields::edit(QWidget *field, const Change &change)
{
    Project *project = m_document->project();
    const CabinetModel *model = project->model(m_modelId);
    if (!model)
        return;
    CabinetModel changed = *model;
    change(changed);
    const QString problem = modelProblem(*project, changed);
    showProblem(problem);
    if (problem.isEmpty())
        m_document->push(new ChangeModelCommand(project, changed, gestureOf(field)));
    else
        showValues();
}

int ModelFields::gestureOf(QWidget *field)
{
    if (m_gestureField != field) {
        m_gestureField = field;
        m_gesture = newGesture();
    }
    return m_gesture;
}

void ModelFields::endGesture()
{
    m_gestureField = nullptr;
}

void ModelFields::showValues()
{
    const CabinetModel *model = m_document->project()->model(m_modelId);
    setEnabled(model);
    const CabinetModel shown = model ? *model : CabinetModel();
    const auto show = [](auto *box, auto value) {
        const QSignalBlocker blocker(box);
        box->setValue(value);
    };
    // Not while it says so already: that would move the text cursor.
    if (m_name->text() != shown.name)
        m_name->setText(shown.name);
    m_family->setCurrentIndex(m_family->findData(shown.family));
    show(m_width, shown.size.width());
    show(m_height, shown.size.height());
    show(m_pitch, shown.pitch);
    show(m_weight, shown.weight);
    show(m_power, shown.power);
    show(m_voltage, shown.voltage);
}

void ModelFields::showFamilies()
{
    const Project *project = m_document->project();
    QStringList families;
    const QStringList modelIds = project->modelIds();
    for (const QString &modelId : modelIds)
        families.append(project->model(modelId)->family);
    families.removeDuplicates();
    // A family that its last model leaves stays for choice until another project is opened.
    for (const QString &family : qAsConst(families)) {
        if (m_family->findData(family) < 0)
            m_family->addItem(family.isEmpty() ? tr("No family") : family, family);
    }
}

void ModelFields::showProblem(const QString &problem)
{
    m_problem->setText(problem);
}

bool ModelFields::eventFilter(QObject *watched, QEvent *event)
{
    auto *field = qobject_cast<QWidget *>(watched);
    if (event->type() == QEvent::FocusOut && m_gestureField == field)
        endGesture();
    // The wheel is for a field that was chosen.
    if (event->type() == QEvent::Wheel && field && !field->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace wall
