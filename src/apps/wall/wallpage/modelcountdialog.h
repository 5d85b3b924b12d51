#ifndef WALL_WALLPAGE_MODELCOUNTDIALOG_H
#define WALL_WALLPAGE_MODELCOUNTDIALOG_H

#include "formdialog.h"

#include <QStringList>
#include <QVector>

class ComboBoxEx;
class SpinBoxEx;

namespace wall
{

/// Asks for a number of cabinets of one model.
class ModelCountDialog : public FormDialog
{
    Q_OBJECT

public:
    ModelCountDialog(const QString &title, const QString &acceptText, QWidget *parent);

    /// Offers a model, of which 1 to \a greatestCount can be chosen.
    void addModel(const QString &modelId, const QString &name, int greatestCount);
    bool isEmpty() const;
    /// Sets how many are proposed, as far as there are so many.
    void setProposedCount(int count);

    /// The chosen model, empty if none is offered.
    QString modelId() const;
    int count() const;

private:
    void limitCount();

    QStringList m_modelIds;
    QVector<int> m_greatestCounts;
    ComboBoxEx *m_model;
    SpinBoxEx *m_count;
};

} // namespace wall

#endif // WALL_WALLPAGE_MODELCOUNTDIALOG_H
