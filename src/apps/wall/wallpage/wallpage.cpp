#include "wallpage.h"

#include "modelboard.h"
#include "parts.h"
#include "propertypanel.h"
#include "senderpanel.h"

#include <labelex.h>
#include <sliderexmouse.h>
#include <theme.h>

#include <QHBoxLayout>
#include <QSignalBlocker>

#include <cmath>

namespace wall
{

namespace
{

constexpr int sliderSteps = 200;
constexpr int sliderKeyStep = 5;
constexpr int sliderWidth = 160;
constexpr int zoomTextWidth = 56;
constexpr int percent = 100;

/// Equal ways on the slider are equal factors of the zoom.
double zoomAt(int position)
{
    const double part = double(position) / sliderSteps;
    return WallPage::leastZoom * std::pow(WallPage::greatestZoom / WallPage::leastZoom, part);
}

int positionOf(double zoom)
{
    const double bounded = qBound(WallPage::leastZoom, zoom, WallPage::greatestZoom);
    const double part = std::log(bounded / WallPage::leastZoom)
        / std::log(WallPage::greatestZoom / WallPage::leastZoom);
    return qRound(part * sliderSteps);
}

QString zoomText(double zoom)
{
    constexpr double leastWholePercent = 10;
    const double percents = zoom * percent;
    return QStringLiteral("%1 %").arg(percents, 0, 'f', percents < leastWholePercent ? 1 : 0);
}

} // namespace

WallPage::WallPage(Document *document, Selection *selection, QWidget *view, QWidget *parent)
    : QWidget(parent)
    , m_senderPanel(new SenderPanel(document, selection, this))
    , m_modelBoard(new ModelBoard(document, selection, this))
    , m_propertyPanel(new PropertyPanel(document, selection, this))
    , m_view(view)
{
    setAutoFillBackground(true); // whatever it lies on
    connect(m_senderPanel, &SenderPanel::placeRequested, this, &WallPage::placeRequested);
    connect(m_modelBoard, &ModelBoard::placeRequested, this, &WallPage::placeRequested);
    connect(m_modelBoard, &ModelBoard::placeRowRequested, this, &WallPage::placeRowRequested);

    auto *middle = new QVBoxLayout;
    middle->setContentsMargins(0, theme::margin, 0, theme::margin);
    middle->setSpacing(theme::gap);
    middle->addWidget(m_view, 1);
    middle->addWidget(m_modelBoard);
    middle->addWidget(createZoomRow());
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(0);
    line->addWidget(m_senderPanel);
    line->addLayout(middle, 1);
    line->addWidget(m_propertyPanel);
    setTabOrder(m_senderPanel, m_view);
    setTabOrder(m_view, m_modelBoard);
    showZoom(1);
}

SenderPanel *WallPage::senderPanel() const
{
    return m_senderPanel;
}

ModelBoard *WallPage::modelBoard() const
{
    return m_modelBoard;
}

PropertyPanel *WallPage::propertyPanel() const
{
    return m_propertyPanel;
}

QWidget *WallPage::view() const
{
    return m_view;
}

void WallPage::showZoom(double zoom)
{
    const QSignalBlocker blocker(m_zoomSlider);
    m_zoomSlider->setValue(positionOf(zoom));
    m_zoomText->setText(zoomText(zoom));
}

QWidget *WallPage::createZoomRow()
{
    constexpr int smallWidth = 36;
    constexpr int fitWidth = 64;
    auto *row = new QWidget(this);
    auto *fit = theme::makeButton(QStringLiteral("Fit"), NoActivatedBtn, row, fitWidth);
    fit->setToolTip(QStringLiteral("Show the whole wall"));
    auto *out = theme::makeButton(QStringLiteral("−"), NoActivatedBtn, row, smallWidth);
    out->setAccessibleName(QStringLiteral("Zoom out"));
    out->setToolTip(QStringLiteral("Zoom out"));
    auto *in = theme::makeButton(QStringLiteral("+"), NoActivatedBtn, row, smallWidth);
    in->setAccessibleName(QStringLiteral("Zoom in"));
    in->setToolTip(QStringLiteral("Zoom in"));
    connect(fit, &PushButtonEx::clicked, this, &WallPage::zoomToFitRequested);
    connect(out, &PushButtonEx::clicked, this, &WallPage::zoomOutRequested);
    connect(in, &PushButtonEx::clicked, this, &WallPage::zoomInRequested);

    m_zoomSlider = new SliderExMouse(row, Qt::Horizontal);
    m_zoomSlider->setRange(0, sliderSteps);
    m_zoomSlider->setSingleStep(sliderKeyStep); // the library's slider has none, so no keys
    m_zoomSlider->setFixedWidth(sliderWidth);
    m_zoomSlider->setAccessibleName(QStringLiteral("Zoom"));
    connect(m_zoomSlider, &SliderExMouse::valueChanged, this, &WallPage::requestZoom);
    m_zoomText = parts::makeValue(zoomTextWidth, row);
    m_zoomText->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    auto *line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(theme::gap);
    line->addStretch();
    line->addWidget(fit);
    line->addWidget(out);
    line->addWidget(m_zoomSlider);
    line->addWidget(in);
    line->addWidget(m_zoomText);
    return row;
}

void WallPage::requestZoom(int position)
{
    m_zoomText->setText(zoomText(zoomAt(position)));
    Q_EMIT zoomRequested(zoomAt(position));
}

} // namespace wall
