#include "modelcountdialog.h"

#include <comboboxex.h>
#include <spinboxex.h>

namespace wall
{

ModelCountDialog::ModelCountDialog(const QString &title, const QString &acceptText, QWidget *parent)
    : FormDialog(title, acceptText, parent)
    , m_model(new ComboBoxEx(this))
    , m_count(new SpinBoxEx(this))
{
    addRow(QStringLiteral("Model"), m_model);
    addRow(QStringLiteral("Count"), m_count);
    m_count->setRange(1, 1);
    connect(m_model, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &ModelCountDialog::limitCount);
}

void ModelCountDialog::addModel(const QString &modelId, const QString &name, int greatestCount)
{
    m_modelIds.append(modelId);
    m_greatestCounts.append(greatestCount);
    m_model->addItem(name);
    limitCount();
}

bool ModelCountDialog::isEmpty() const
{
    return m_modelIds.isEmpty();
}

void ModelCountDialog::setProposedCount(int count)
{
    m_count->setValue(count);
}

QString ModelCountDialog::modelId() const
{
    return m_modelIds.value(m_model->currentIndex());
}

int ModelCountDialog::count() const
{
    return m_count->value();
}

void ModelCountDialog::limitCount()
{
    m_count->setMaximum(m_greatestCounts.value(m_model->currentIndex(), 1));
}

} // namespace wall
