#include "windowtitle.h"

#include "internal/mirroring.h"
#include "internal/spokenname.h"
#include "internal/stylesheet.h"
#include "internal/taborder.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace
{

constexpr QSize logoImageSize(23, 18);
constexpr QSize logoTextSize(100, 18);
constexpr int logoSpacing = 10;
constexpr QSize buttonSize(30, 20);

/// The sheet of a button whose pictures begin with \a stem. A button that is pressed is hovered
/// too, and the last rule wins: the pressed picture shows only while the pointer is elsewhere.
orvane::SheetText buttonSheet(QStringView stem)
{
    orvane::SheetText picture;
    picture << u"{border-image: url(:/Resource/Images/globalResource/titletbarbutton/" << stem;
    orvane::SheetText sheet;
    sheet << u"QPushButton" << picture
          << u"_normal.png);}"
             u"QPushButton:pressed"
          << picture
          << u"_pressed.png);}"
             u"QPushButton:hover"
          << picture << u"_hover.png);}";
    return sheet;
}

QPushButton *makeButton(QStringView stem, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setFixedSize(buttonSize);
    button->setCursor(Qt::PointingHandCursor);
    orvane::applyStyleSheet(button, buttonSheet(stem));
    return button;
}

} // namespace

WindowTitle::WindowTitle(QWidget *parent)
    : QFrame(parent)
{
}

WindowTitle::WindowTitle(QSize size, QWidget *parent)
    : QFrame(parent)
    , m_titleSize(size)
{
    setAttribute(Qt::WA_MouseTracking);
    setFixedSize(size);
    setObjectName(QStringLiteral("WindowTitle"));

    m_mainLayout = new QHBoxLayout(this);
    m_mainLayout->setContentsMargins(0, 0, 0, 0);
    m_mainLayout->setSpacing(0);
    buildLogo();
    buildButtons();
    m_mainLayout->addLayout(m_logoLayout); // refused, as the logo's layout has a parent
    m_mainLayout->addLayout(m_buttonLayout);
    orvane::keepFromLeftToRight(m_buttonLayout);
}

WindowTitle::~WindowTitle() = default;

void WindowTitle::rebuildUI(QSize size)
{
    m_titleSize = size;
    setFixedSize(size);
}

void WindowTitle::setBtnMax(bool isMaximized)
{
    orvane::applyStyleSheet(m_maximizeButton,
                            buttonSheet(isMaximized ? u"btn_return" : u"btn_max"));
    orvane::speakAs(m_maximizeButton, isMaximized ? tr("Restore") : tr("Maximise"),
                    isMaximized ? tr("Maximise") : tr("Restore"));
}

void WindowTitle::SetLogoImageSize(const QSize &size)
{
    m_logoImage->setFixedSize(size);
}

void WindowTitle::SetLogoImagePath(const QString &path)
{
    orvane::applyStyleSheet(m_logoImage,
                            orvane::SheetText() << u"QLabel{border-image:url(" << path << u");}");
}

void WindowTitle::SetLogoTextSize(const QSize &size)
{
    m_logoText->setFixedSize(size);
}

void WindowTitle::SetLogoTextStyleSheet(const QString &styleSheet)
{
    orvane::applyStyleSheet(m_logoText, styleSheet);
}

void WindowTitle::SetLogoTextValue(const QString &text)
{
    m_logoText->setText(text);
}

void WindowTitle::SetBtnGroupVisable(bool isVisible)
{
    m_closeButton->setVisible(isVisible);
    m_minimizeButton->setVisible(isVisible);
    m_maximizeButton->setVisible(isVisible);
}

void WindowTitle::SetLogoGroupVisable(bool isVisible)
{
    m_logoImage->setVisible(isVisible);
    m_logoText->setVisible(isVisible);
}

void WindowTitle::SetMinBtnToolTip(const QString &toolTip)
{
    m_minimizeButton->setToolTip(toolTip);
}

void WindowTitle::SetMaxBtnToolTip(const QString &toolTip)
{
    m_maximizeButton->setToolTip(toolTip);
}

void WindowTitle::SetCloseBtnToolTip(const QString &toolTip)
{
    m_closeButton->setToolTip(toolTip);
}

void WindowTitle::mouseDoubleClickEvent(QMouseEvent * /*event*/)
{
    // Accepted, and no press for the parent: it does not start a drag.
    Q_EMIT signal_mouseDoubleClickIntitle();
}

void WindowTitle::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    // The logo is where the host has put it, at the left: the buttons must not come to lie on it.
    if (event->type() == QEvent::LayoutDirectionChange && m_buttonLayout)
        orvane::keepFromLeftToRight(m_buttonLayout);
}

void WindowTitle::buildLogo()
{
    m_logoImage = new QLabel(this);
    m_logoImage->setFixedSize(logoImageSize);
    m_logoText = new QLabel(this);
    m_logoText->setFixedSize(logoTextSize);
    // They lie over the title's corner: moves without a button go on to its parent from there too.
    m_logoImage->setMouseTracking(true);
    m_logoText->setMouseTracking(true);

    // Hosts rely on labels that no layout moves. Qt refuses this layout, as the title has one, and
    // leaves it without a parent; as a child of the main layout it is owned, and not laid out.
    m_logoLayout = new QHBoxLayout(this);
    m_logoLayout->setParent(m_mainLayout);
    m_logoLayout->addSpacing(logoSpacing);
    m_logoLayout->addWidget(m_logoImage);
    m_logoLayout->addSpacing(logoSpacing);
    m_logoLayout->addWidget(m_logoText);
    m_logoLayout->addSpacing(logoSpacing);
}

void WindowTitle::buildButtons()
{
    m_closeButton = makeButton(u"btn_close", this);
    m_minimizeButton = makeButton(u"btn_mix", this);
    m_maximizeButton = makeButton(u"btn_max", this);

    orvane::speakAs(m_closeButton, tr("Close"));
    orvane::speakAs(m_minimizeButton, tr("Minimise"));
    orvane::speakAs(m_maximizeButton, tr("Maximise"));
    orvane::tabInOrder({m_minimizeButton, m_maximizeButton, m_closeButton});

    connect(m_closeButton, &QPushButton::clicked, this, &WindowTitle::signal_closeMainForm);
    connect(m_minimizeButton, &QPushButton::clicked, this, &WindowTitle::signal_minimizeMainForm);
    connect(m_maximizeButton, &QPushButton::clicked, this, &WindowTitle::signal_maxMainForm);

    m_buttonLayout = new QHBoxLayout;
    m_buttonLayout->addStretch();
    m_buttonLayout->addWidget(m_minimizeButton);
    m_buttonLayout->addWidget(m_maximizeButton);
    m_buttonLayout->addWidget(m_closeButton);
}
