#include "modeltree.h"

#include "look.h"

#include <treeitem.h>

#include <QKeyEvent>
#include <QSignalBlocker>

namespace wall
{

namespace
{

constexpr int modelIdRole = Qt::UserRole;

// The check box is drawn below the row's widget, whose texts give way to it. A label without a
// frame keeps a padding twice, as margin and as indentation.
const QString nameSheet = QStringLiteral("color:rgb(210,210,210);padding-left:11px;");
const QString sizeSheet = QStringLiteral("color:rgb(153,153,153);padding-left:11px;");

QString modelIdOf(const QTreeWidgetItem *item)
{
    return item ? item->data(0, modelIdRole).toString() : QString();
}

} // namespace

ModelTree::ModelTree(Project *project, QWidget *parent)
    : TreeViewEx(parent)
    , m_project(project)
{
    setStrTitleStyle(nameSheet);
    setStrContentStyle(sizeSheet);
    setAccessibleName(tr("Models"));
    look::styleScrollBars(this);

    connect(this, &QTreeWidget::currentItemChanged, this, &ModelTree::noteCurrent);
    connect(this, &QTreeWidget::itemChanged, this, &ModelTree::noteCheck);
    connect(project, &Project::wasReset, this, &ModelTree::fill);
    connect(project, &Project::modelChanged, this, &ModelTree::updateRow);
    fill();
}

QString ModelTree::currentModel() const
{
    return m_current;
}

void ModelTree::setCurrentModel(const QString &modelId)
{
    if (QTreeWidgetItem *item = row(modelId))
        setCurrentItem(item);
}

QStringList ModelTree::checkedModels() const
{
    QStringList checked = m_project->modelIds();
    for (const QString &modelId : m_unchecked)
        checked.removeOne(modelId);
    return checked;
}

QTreeWidgetItem *ModelTree::row(const QString &modelId) const
{
    return m_rows.value(modelId);
}

void ModelTree::keyPressEvent(QKeyEvent *event)
{
    // Qt hands Space to a row's widget, which has no use for it.
    QTreeWidgetItem *item = row(modelIdOf(currentItem()));
    if (event->key() != Qt::Key_Space || !item) {
        TreeViewEx::keyPressEvent(event);
        return;
    }
    item->setCheckState(0, item->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void ModelTree::fill()
{
    {
        const QSignalBlocker blocker(this);
        removeAllItem();
        m_rows.clear();
        m_families.clear();
        m_unchecked.clear();
        const QStringList modelIds = m_project->modelIds();
        for (const QString &modelId : modelIds)
            addRow(*m_project->model(modelId), Qt::Checked);
        setCurrentItem(m_rows.value(modelIds.value(0)));
    }
    m_current = modelIdOf(currentItem());
    Q_EMIT currentModelChanged();
    Q_EMIT checkedModelsChanged();
}

void ModelTree::updateRow(const QString &modelId)
{
    const CabinetModel *model = m_project->model(modelId);
    QTreeWidgetItem *item = row(modelId);
    if (!model || !item)
        return;
    const QSignalBlocker blocker(this);
    item->setData(0, Qt::AccessibleTextRole, model->name);
    if (item->parent() != m_families.value(model->family)) {
        moveToFamily(*model);
        return;
    }
    auto *widget = qobject_cast<TreeItem *>(itemWidget(item, 0));
    if (widget && widget->getCabinetSize() == model->size) {
        widget->setCabinetName(model->name);
        return;
    }
    // A row's widget keeps the size that it was made with.
    auto *newWidget = new TreeItem(model->name, model->size);
    newWidget->setTilteStyleSheet(strTitleStyle());
    newWidget->setContentStyleSheet(strContentStyle());
    newWidget->setAttribute(Qt::WA_TranslucentBackground);
    setItemWidget(item, 0, newWidget);
}

void ModelTree::addRow(const CabinetModel &model, Qt::CheckState state)
{
    QTreeWidgetItem *family = familyRow(model.family);
    addTreeItem(family, model.name, model.size, nullptr, state);
    QTreeWidgetItem *item = family->child(family->childCount() - 1);
    item->setData(0, modelIdRole, model.id);
    item->setData(0, Qt::AccessibleTextRole, model.name);
    m_rows.insert(model.id, item);
    family->setExpanded(true);
}

void ModelTree::moveToFamily(const CabinetModel &model)
{
    QTreeWidgetItem *item = m_rows.take(model.id);
    QTreeWidgetItem *oldFamily = item->parent();
    const Qt::CheckState state = item->checkState(0);
    const bool wasCurrent = item == currentItem();
    delete item;
    if (oldFamily->childCount() == 0) {
        m_families.remove(m_families.key(oldFamily));
        delete oldFamily;
    }
    addRow(model, state);
    if (wasCurrent)
        setCurrentItem(row(model.id));
}

QTreeWidgetItem *ModelTree::familyRow(const QString &family)
{
    QTreeWidgetItem *&item = m_families[family];
    if (!item) {
        item = new QTreeWidgetItem(this, {family.isEmpty() ? tr("No family") : family});
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        item->setForeground(0, look::text);
        QFont bold = font();
        bold.setWeight(QFont::DemiBold);
        item->setFont(0, bold);
    }
    return item;
}

void ModelTree::noteCurrent()
{
    const QString current = modelIdOf(currentItem());
    // A family is no model; the last one stays chosen.
    if (current.isEmpty() || current == m_current)
        return;
    m_current = current;
    Q_EMIT currentModelChanged();
}

void ModelTree::noteCheck(QTreeWidgetItem *item)
{
    const QString modelId = modelIdOf(item);
    if (modelId.isEmpty())
        return;
    const bool isChecked = item->checkState(0) == Qt::Checked;
    if (isChecked == !m_unchecked.contains(modelId))
        return;
    if (isChecked)
        m_unchecked.remove(modelId);
    else
        m_unchecked.insert(modelId);
    Q_EMIT checkedModelsChanged();
}

} // namespace wall
