#include "listwidgettitle.h"

#include "internal/imagebutton.h"
#include "internal/spokenname.h"
#include "internal/stylesheet.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

namespace
{

orvane::SheetText buttonSheet(QStringView stem)
{
    orvane::SheetText sheet;
    sheet << u"QToolButton{background-color:rgb(225, 225, 225); border:none;}"
          << orvane::imageButtonSheet(stem);
    return sheet;
}

} // namespace

ListWidgetTitle::ListWidgetTitle(QString title, QWidget *parent)
    : QWidget(parent)
    , m_titleLabel(new QLabel(title, this))
    , m_settingsButton(new orvane::ImageButton(this))
    , m_refreshButton(new orvane::ImageButton(this))
    , m_dropDownButton(new orvane::ImageButton(this))
{
    initLayout();
    connect(m_dropDownButton, &QToolButton::clicked, this, &ListWidgetTitle::slot_HideClicked);
    connect(m_refreshButton, &QToolButton::clicked, this, &ListWidgetTitle::signal_Refresh);
    connect(m_settingsButton, &QToolButton::clicked, this, &ListWidgetTitle::signal_Setting);
}

void ListWidgetTitle::setTitle(QString title)
{
    m_titleLabel->setText(title);
}

void ListWidgetTitle::changeDropDownBtn(bool isShown)
{
    m_dropDownButton->setIcon(QIcon());
    orvane::applyStyleSheet(
        m_dropDownButton, buttonSheet(isShown ? u"listwidget/btn_unfold" : u"listwidget/btn_fold"));
    orvane::speakAs(m_dropDownButton, isShown ? tr("Fold") : tr("Unfold"),
                    isShown ? tr("Unfold") : tr("Fold"));
}

void ListWidgetTitle::hideRefIcon()
{
    m_refreshButton->hide();
}

void ListWidgetTitle::setIconVisible(bool visible)
{
    m_settingsButton->setVisible(visible);
    m_refreshButton->setVisible(visible);
    m_dropDownButton->setVisible(visible);
}

void ListWidgetTitle::slot_HideClicked()
{
    m_isListShown = !m_isListShown;
    Q_EMIT signal_HideShow(m_isListShown);
}

void ListWidgetTitle::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        m_settingsButton->move(cornerOfSettings());
}

void ListWidgetTitle::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (isRightToLeft())
        m_settingsButton->move(cornerOfSettings());
}

QPoint ListWidgetTitle::cornerOfSettings() const
{
    // Over the title, as no layout has it. At the left the other buttons would lie below it.
    return {isRightToLeft() ? width() - m_settingsButton->width() : 0, 0};
}

void ListWidgetTitle::initLayout()
{
    constexpr int buttonSide = 13;
    constexpr int titleHeight = 32;

    m_titleLabel->setContentsMargins(6, 6, 0, 6);
    m_titleLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    orvane::applyStyleSheet(m_titleLabel, QStringLiteral("font: 11pt \"微软雅黑\";"));

    for (QToolButton *button : {m_settingsButton, m_refreshButton, m_dropDownButton})
        button->setFixedSize(buttonSide, buttonSide);
    orvane::applyStyleSheet(m_settingsButton, buttonSheet(u"listwidget/btn_settings_guide"));
    orvane::applyStyleSheet(m_refreshButton, buttonSheet(u"listwidget/btn_refresh_guide"));
    orvane::speakAs(m_settingsButton, tr("Settings"));
    orvane::speakAs(m_refreshButton, tr("Refresh"));
    orvane::speakAs(m_dropDownButton, tr("Fold"));
    changeDropDownBtn(true);
    m_settingsButton->hide();

    auto *layout = new QHBoxLayout;
    layout->addWidget(m_titleLabel);
    layout->addStretch(20);
    layout->addWidget(m_refreshButton);
    layout->addWidget(m_dropDownButton);
    layout->setSpacing(8);
    layout->setContentsMargins(0, 0, 10, 0);

    setAutoFillBackground(true);
    QPalette palette = this->palette();
    palette.setBrush(QPalette::Window, QColor(225, 225, 225));
    setPalette(palette);
    setMinimumHeight(titleHeight);
    setMaximumHeight(titleHeight);
    setLayout(layout);
    setWindowFlags(Qt::FramelessWindowHint);
}
