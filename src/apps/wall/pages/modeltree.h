#ifndef WALL_MODELTREE_H
#define WALL_MODELTREE_H

#include "model/project.h"

#include <treeviewex.h>

#include <QHash>
#include <QSet>

namespace wall
{

/**
 * The models of a project under their families.
 *
 * A model is checked to be counted: the page adds the checked ones up beside the whole wall. Which
 * ones are checked is a matter of this view, so it is neither saved nor undone; new models begin
 * checked. A click on a row chooses its model and checks or unchecks it, as the library's tree has
 * it. The arrow keys only choose, and Space only checks.
 */
class ModelTree : public TreeViewEx
{
    Q_OBJECT

public:
    explicit ModelTree(Project *project, QWidget *parent = nullptr);

    /// The chosen model, empty for none.
    QString currentModel() const;
    void setCurrentModel(const QString &modelId);
    /// The checked models, in the project's order.
    QStringList checkedModels() const;
    /// The row of a model, null for none.
    QTreeWidgetItem *row(const QString &modelId) const;

Q_SIGNALS:
    void currentModelChanged();
    void checkedModelsChanged();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void fill();
    void updateRow(const QString &modelId);
    void addRow(const CabinetModel &model, Qt::CheckState state);
    void moveToFamily(const CabinetModel &model);
    QTreeWidgetItem *familyRow(const QString &family);
    void noteCurrent();
    void noteCheck(QTreeWidgetItem *item);

    Project *m_project;
    QHash<QString, QTreeWidgetItem *> m_rows;
    QHash<QString, QTreeWidgetItem *> m_families;
    QSet<QString> m_unchecked;
    QString m_current;
};

} // namespace wall

#endif // WALL_MODELTREE_H
