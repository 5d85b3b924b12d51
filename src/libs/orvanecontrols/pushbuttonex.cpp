#include "pushbuttonex.h"

#include "definecommondata.h"
#include "internal/commandlook.h"
#include "internal/elidedtext.h"
#include "internal/stylesheet.h"

PushButtonEx::PushButtonEx(QWidget *parent, BtnType type)
    : QPushButton(parent)
    , m_noActivatedLook(std::make_unique<orvane::CommandLook>())
    , m_activatedLook(std::make_unique<orvane::CommandLook>())
{
    createButtonByType(type);
}

PushButtonEx::~PushButtonEx() = default;

void PushButtonEx::createButtonByType(BtnType type)
{
    switch (type) {
    case ActivatedBtn:
        initActivatedButtonParam();
        setActivatedStyle();
        break;
    case NoActivatedBtn:
        initNoActivatedButtonParam();
        setNoActivatedStyle();
        break;
    default:
        orvane::applyStyleSheet(this,
                                orvane::SheetText() << u"color:rgb(255,255,255);font:"
                                                    << DefineCommonData::getNormalFont() << u";");
    }
}

void PushButtonEx::initActivatedButtonParam()
{
    *m_activatedLook = orvane::activatedCommandLook();
}

void PushButtonEx::initNoActivatedButtonParam()
{
    *m_noActivatedLook = orvane::notActivatedCommandLook();
}

void PushButtonEx::setActivatedStyle()
{
    orvane::applyStyleSheet(this,
                            orvane::commandSheet(u"QPushButton", *m_activatedLook,
                                                 {u"hover", u"pressed", u"disabled"},
                                                 DefineCommonData::getNormalFont()));
}

void PushButtonEx::setNoActivatedStyle()
{
    // The capitals are not a slip: hosts rely on the text, and sheets ignore the case of states.
    orvane::applyStyleSheet(this,
                            orvane::commandSheet(u"QPushButton", *m_noActivatedLook,
                                                 {u"Hover", u"Pressed", u"Disabled"},
                                                 DefineCommonData::getNormalFont()));
}

void PushButtonEx::setText(const QString &text)
{
    m_text = text;
    QPushButton::setText(orvane::elideWithToolTip(this, text, width()));
}

QString PushButtonEx::text() const
{
    return m_text;
}

QString PushButtonEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}
