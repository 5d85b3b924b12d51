#ifndef ORVANE_TESTS_SPINARROWS_H
#define ORVANE_TESTS_SPINARROWS_H

#include <QStyleOptionSpinBox>
#include <QtTest>
#include <QWindow>

/// A spin box class whose arrows can be found and clicked.
template <typename SpinBox> class WithArrows : public SpinBox
{
public:
    using SpinBox::SpinBox;

    QRect arrow(QStyle::SubControl control) const
    {
        QStyleOptionSpinBox option;
        this->initStyleOption(&option);
        return this->style()->subControlRect(QStyle::CC_SpinBox, &option, control, this);
    }

    bool hasAnArrowDown() const
    {
        QStyleOptionSpinBox option;
        this->initStyleOption(&option);
        return option.state & QStyle::State_Sunken;
    }

    /// Clicks through the window, so that Qt itself finds the receiver.
    void click(QStyle::SubControl control, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(this->window()->windowHandle(), button, Qt::NoModifier,
                          this->mapTo(this->window(), arrow(control).center()));
    }
};

#endif // ORVANE_TESTS_SPINARROWS_H
