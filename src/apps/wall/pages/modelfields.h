#ifndef WALL_MODELFIELDS_H
#define WALL_MODELFIELDS_H

#include "model/values.h"

#include <QPointer>
#include <QWidget>

#include <functional>

class ComboBoxEx;
class DoubleSpinBoxEx;
class LineEditEx;
class QGridLayout;
class QLabel;
class SpinBoxEx;

namespace wall
{

class Document;

/**
 * The properties of one model, to be read and edited.
 *
 * Each accepted edit is a step of the undo stack; those of one field, from when it gets the focus
 * until it is left or Return is pressed, are one. What the project refuses is not entered: the
 * field goes back to the value that is in force, and the reason stands below the fields until the
 * next edit. Numbers count when they are complete: with Return, an arrow, or when the field is
 * left.
 *
 * The name is used for files, too, so the field warns of characters that file names do not allow.
 */
class ModelFields : public QWidget
{
    Q_OBJECT

public:
    explicit ModelFields(Document *document, QWidget *parent = nullptr);

    /// The model that is shown, empty for none.
    QString modelId() const;
    void setModelId(const QString &modelId);
    /// Why the last edit was refused, empty if it was not.
    QString problem() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Change = std::function<void(CabinetModel &)>;

    LineEditEx *addName();
    ComboBoxEx *addFamily();
    SpinBoxEx *addPixels(const QString &name, const std::function<int &(CabinetModel &)> &value);
    DoubleSpinBoxEx *addNumber(const QString &name, const QString &unit, int decimals, double limit,
                               double CabinetModel::*value);
    void addRow(const QString &name, QWidget *field, const QString &unit = QString());
    void edit(QWidget *field, const Change &change);
    int gestureOf(QWidget *field);
    void endGesture();
    void showValues();
    void showFamilies();
    void showProblem(const QString &problem);

    Document *m_document;
    QString m_modelId;
    QGridLayout *m_layout;
    LineEditEx *m_name;
    ComboBoxEx *m_family;
    SpinBoxEx *m_width;
    SpinBoxEx *m_height;
    DoubleSpinBoxEx *m_pitch;
    DoubleSpinBoxEx *m_weight;
    DoubleSpinBoxEx *m_power;
    DoubleSpinBoxEx *m_voltage;
    QLabel *m_problem;
    QPointer<QWidget> m_gestureField;
    int m_gesture = 0;
};

} // namespace wall

#endif // WALL_MODELFIELDS_H
