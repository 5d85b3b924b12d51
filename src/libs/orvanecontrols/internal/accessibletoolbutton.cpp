#include "accessibletoolbutton.h"

#include "../toolbuttonex.h"
#include "cabinetpainter.h"

#include <QAccessibleWidget>
#include <QCoreApplication>

namespace orvane
{

namespace
{

/// What \a button says by labels, by painting, or in Qt's way.
QString shownText(const ToolButtonEx &button)
{
    switch (button.buttonType()) {
    case LeftToRightType:
        return button.strRightText();
    case TopToBottomType:
        return QString(button.strUpText() + ' ' + button.strDownText()).trimmed();
    case CabinetType:
    case CabinetModelType:
        if (button.cabinetWidth() > 0 && button.cabinetHeight() > 0)
            return cabinetSizeText(QSize(button.cabinetWidth(), button.cabinetHeight()));
        return {};
    default:
        return button.QToolButton::text(); // as it is seen
    }
}

class AccessibleToolButton : public QAccessibleWidget
{
public:
    explicit AccessibleToolButton(ToolButtonEx *button)
        : QAccessibleWidget(button, QAccessible::Button)
        , m_button(button)
    {
    }

    QString text(QAccessible::Text part) const override
    {
        const QString text = QAccessibleWidget::text(part);
        return part == QAccessible::Name && text.isEmpty() ? shownText(*m_button) : text;
    }

    QAccessible::Role role() const override
    {
        return m_button->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = m_button->isCheckable();
        state.checked = m_button->isChecked();
        state.pressed = m_button->isDown();
        return state;
    }

    QStringList actionNames() const override
    {
        if (!m_button->isEnabled())
            return QAccessibleWidget::actionNames();
        return QStringList(ownAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &action) override
    {
        if (action == ownAction() && m_button->isEnabled())
            m_button->click();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    const QString &ownAction() const
    {
        return m_button->isCheckable() ? toggleAction() : pressAction();
    }

    ToolButtonEx *m_button;
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    if (className != QLatin1String(ToolButtonEx::staticMetaObject.className()))
        return nullptr;
    auto *button = qobject_cast<ToolButtonEx *>(object);
    if (!button)
        return nullptr;
    switch (button->buttonType()) {
    case LeftToRightType:
    case TopToBottomType:
    case CabinetType:
    case CabinetModelType:
        return new AccessibleToolButton(button);
    default:
        return nullptr; // Qt's own speaks the text
    }
}

/// Takes the function out again when the library is unloaded while the application goes on.
struct Installation {
    Installation() { QAccessible::installFactory(createInterface); }
    ~Installation()
    {
        if (QCoreApplication::instance())
            QAccessible::removeFactory(createInterface);
    }
    Q_DISABLE_COPY(Installation)
};

} // namespace

void makeToolButtonsSpeak()
{
    static const Installation installation;
}

} // namespace orvane
