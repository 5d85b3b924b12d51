#ifndef GALLERY_CONTROLS_H
#define GALLERY_CONTROLS_H

#include "theme.h"

#include <checkboxex.h>
#include <comboboxex.h>
#include <lineeditex.h>
#include <pushbuttonex.h>
#include <spinboxex.h>

#include <QColor>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QToolButton>

/**
 * The controls of the gallery itself: the library's widgets, brought to one height and one ground.
 * Each has showValue(), which does not emit, and the signal changed() for what a person does.
 */

class ColorButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ColorButton(QWidget *parent);

    void showValue(const QColor &color);
    QSize sizeHint() const override;

Q_SIGNALS:
    void changed(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void choose();

    QColor m_color;
};

class NumberField : public SpinBoxEx
{
    Q_OBJECT

public:
    NumberField(int minimum, int maximum, QWidget *parent);

    void showValue(int value);

Q_SIGNALS:
    void changed(int value);

protected:
    void wheelEvent(QWheelEvent *event) override;
};

class TextField : public LineEditEx
{
    Q_OBJECT

public:
    explicit TextField(QWidget *parent);

    void showValue(const QString &text);

Q_SIGNALS:
    void changed(const QString &text);
};

class FlagBox : public CheckBoxEx
{
    Q_OBJECT

public:
    explicit FlagBox(QWidget *parent);

    void showValue(bool on);

Q_SIGNALS:
    void changed(bool on);
};

class ChoiceBox : public ComboBoxEx
{
    Q_OBJECT

public:
    ChoiceBox(const QStringList &choices, QWidget *parent);

    void showValue(int index);

Q_SIGNALS:
    void changed(int index);

protected:
    void wheelEvent(QWheelEvent *event) override;
};

using theme::makeButton;

/// A signal's argument as the list of events shows it. A page whose signals carry other types
/// declares its own in the global namespace.
QString eventText(bool value);
QString eventText(int value);
QString eventText(double value);
QString eventText(const QSize &value);
QString eventText(const QString &value);
QString eventText(const QColor &value);
QString eventText(const QPixmap &value);
/// A pointer is not to be taken for a bool.
template <class Pointee> QString eventText(Pointee *) = delete;

#endif // GALLERY_CONTROLS_H
