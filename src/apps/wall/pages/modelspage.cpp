#include "modelspage.h"

#include "cabinetpreview.h"
#include "document.h"
#include "look.h"
#include "measures.h"
#include "modelfields.h"
#include "modeltree.h"

#include <checkboxex.h>
#include <radiobuttonex.h>
#include <sliderex.h>

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QTimer>

namespace wall
{

namespace
{

constexpr int treeWidth = 60 * look::unit;
constexpr int fieldsWidth = 68 * look::unit;
constexpr int sliderWidth = 30 * look::unit;
constexpr int firstBrightness = 80; // percent

/// A panel that is raised from the page's ground.
class Panel : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(rect(), look::raised); }
};

} // namespace

ModelsPage::ModelsPage(Document *document, QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_project(document->project())
    , m_tree(new ModelTree(m_project, this))
    , m_fields(new ModelFields(document, this))
    , m_preview(new CabinetPreview(this))
    , m_totalsTimer(new QTimer(this))
{
    look::applyTo(this);
    m_tree->setFixedWidth(treeWidth);
    m_fields->setFixedWidth(fieldsWidth);

    auto *columns = new QHBoxLayout;
    columns->setSpacing(look::margin + look::gap);
    columns->addWidget(makeColumn(tr("Models"), m_tree));
    columns->addWidget(makeColumn(tr("Properties"), m_fields));
    columns->addWidget(makeColumn(tr("Preview"), makePreview()), 1);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(look::margin, look::margin, look::margin, look::margin);
    layout->setSpacing(look::margin);
    layout->addLayout(columns, 1);
    layout->addWidget(makeTotals());

    connect(m_tree, &ModelTree::currentModelChanged, this, [this] {
        m_fields->setModelId(m_tree->currentModel());
        updatePreview();
    });
    connect(m_project, &Project::modelChanged, this, &ModelsPage::updatePreview);
    // Once for all changes of one turn: a wall that is generated or deleted has many.
    m_totalsTimer->setSingleShot(true);
    m_totalsTimer->setInterval(0);
    connect(m_totalsTimer, &QTimer::timeout, this, &ModelsPage::updateTotals);
    connect(m_project, &Project::totalsChanged, this, &ModelsPage::updateTotalsSoon);
    connect(m_project, &Project::wasReset, this, &ModelsPage::updateTotalsSoon);
    connect(m_tree, &ModelTree::checkedModelsChanged, this, &ModelsPage::updateTotalsSoon);

    m_fields->setModelId(m_tree->currentModel());
    updatePreview();
}

QWidget *ModelsPage::makeColumn(const QString &heading, QWidget *content)
{
    auto *column = new QWidget(this);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(look::gap);
    layout->addWidget(look::makeHeading(heading, column));
    layout->addWidget(content, 1);
    return column;
}

QWidget *ModelsPage::makePreview()
{
    auto *preview = new QWidget(this);
    auto *layout = new QVBoxLayout(preview);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(look::gap);
    layout->addWidget(m_preview, 1);
    layout->addWidget(makePreviewControls());
    return preview;
}

QWidget *ModelsPage::makePreviewControls()
{
    auto *controls = new QWidget(this);

    auto *brightnessLabel = new QLabel(tr("Brightness"), controls);
    auto *brightness = new SliderEx(controls, Qt::Horizontal);
    brightness->setFixedSize(sliderWidth, look::controlHeight);
    brightness->setRange(0, 100);
    brightness->setAccessibleName(tr("Brightness, percent"));
    brightness->setSubPageColor(look::accent);
    brightnessLabel->setBuddy(brightness);
    connect(brightness, &QSlider::valueChanged, m_preview, &CabinetPreview::setBrightness);
    brightness->setValue(firstBrightness);

    auto *grid = new CheckBoxEx(controls);
    grid->setFontColor(look::text);
    look::setWholeText(grid, tr("Pixel grid"));
    grid->setChecked(true);
    connect(grid, &QCheckBox::toggled, m_preview, &CabinetPreview::setGridShown);

    auto *millimetres = new RadioButtonEx(controls);
    auto *inches = new RadioButtonEx(controls);
    for (RadioButtonEx *button : {millimetres, inches})
        button->setFontColor(look::text);
    look::setWholeText(millimetres, tr("mm"));
    look::setWholeText(inches, tr("inch"));
    millimetres->setChecked(true);
    connect(inches, &QRadioButton::toggled, this, [this](bool isInch) {
        m_preview->setUnit(isInch ? LengthUnit::Inch : LengthUnit::Millimetre);
    });

    auto *layout = new QHBoxLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(look::gap);
    layout->addWidget(brightnessLabel);
    layout->addWidget(brightness);
    layout->addSpacing(look::gap);
    layout->addWidget(grid);
    layout->addStretch(1);
    layout->addWidget(millimetres);
    layout->addWidget(inches);
    return controls;
}

QWidget *ModelsPage::makeTotals()
{
    auto *panel = new Panel(this);
    auto *layout = new QGridLayout(panel);
    layout->setContentsMargins(look::margin, look::margin, look::margin, look::margin);
    layout->setHorizontalSpacing(2 * look::margin);
    layout->setVerticalSpacing(look::gap);
    layout->addWidget(look::makeHeading(tr("Totals"), panel), 0, 0);
    const QStringList names = {tr("Cabinets"), tr("Pixels"), tr("Weight"), tr("Power")};
    for (int i = 0; i < names.size(); ++i) {
        QLabel *label = look::makeWrappedLabel(names.at(i), panel);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        layout->addWidget(label, 0, i + 1);
        layout->setColumnStretch(i + 1, 1);
    }
    m_wallRow = addTotalsRow(layout, tr("Wall"), QStringLiteral("wall"));
    m_checkedRow = addTotalsRow(layout, tr("Checked models"), QStringLiteral("checked"));
    return panel;
}

ModelsPage::TotalsRow ModelsPage::addTotalsRow(QGridLayout *layout, const QString &name,
                                               const QString &objectName)
{
    const int row = layout->rowCount();
    QWidget *panel = layout->parentWidget();
    layout->addWidget(new QLabel(name, panel), row, 0);
    int column = 1;
    const auto addValue = [&](const QString &what) {
        auto *label = new QLabel(panel);
        label->setObjectName(objectName + what);
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        layout->addWidget(label, row, column++);
        return label;
    };
    TotalsRow added{};
    added.cabinets = addValue(QStringLiteral("Cabinets"));
    added.pixels = addValue(QStringLiteral("Pixels"));
    added.weight = addValue(QStringLiteral("Weight"));
    added.power = addValue(QStringLiteral("Power"));
    return added;
}

void ModelsPage::showTotals(const TotalsRow &row, const Totals &totals)
{
    row.cabinets->setText(countText(totals.cabinets));
    row.pixels->setText(countText(totals.pixels));
    row.weight->setText(weightText(totals.weight));
    row.power->setText(powerText(totals.power));
}

void ModelsPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_areTotalsOld)
        updateTotals();
}

void ModelsPage::updateTotalsSoon()
{
    m_areTotalsOld = true;
    // While it is not seen, the page costs the others nothing.
    if (isVisible())
        m_totalsTimer->start();
}

void ModelsPage::updateTotals()
{
    m_areTotalsOld = false;
    showTotals(m_wallRow, m_project->totals());
    showTotals(m_checkedRow, totalsOfModels(*m_project, m_tree->checkedModels()));
}

void ModelsPage::updatePreview()
{
    QSizeF largest;
    const QStringList modelIds = m_project->modelIds();
    for (const QString &modelId : modelIds)
        largest = largest.expandedTo(cabinetMeasures(*m_project->model(modelId)));
    if (const CabinetModel *model = m_project->model(m_tree->currentModel()))
        m_preview->setModel(*model, largest);
    else
        m_preview->clear();
}

} // namespace wall
