#include "customlistwidgetmulitem.h"

#include "internal/livelist.h"
#include "internal/stylesheet.h"
#include "labelex.h"

#include <QHBoxLayout>

namespace
{

constexpr Qt::Alignment atLeft = Qt::AlignLeft | Qt::AlignVCenter;
constexpr Qt::Alignment atRight = Qt::AlignRight | Qt::AlignVCenter;

void setColumn(LabelEx *label, int width, Qt::Alignment alignment)
{
    label->setFixedWidth(width);
    label->setAlignment(alignment);
}

/// Makes \a label the column \a column of a row of more than two texts.
void setNarrowColumn(LabelEx *label, int column)
{
    if (column == 0)
        setColumn(label, 206, atLeft);
    else if (column == 1)
        setColumn(label, 110, atLeft);
    else if (column == 2)
        setColumn(label, 40, atRight);
}

/// Makes \a label the column \a column of a row of one or two texts.
void setWideColumn(LabelEx *label, int column)
{
    label->setContentsMargins(6, 0, 6, 0);
    if (column == 0)
        setColumn(label, 256, atLeft);
    else
        label->setAlignment(atRight);
}

} // namespace

CustomListWidgetMulItem::CustomListWidgetMulItem(QStringList texts, QWidget *parent, bool flag)
    : QWidget(parent)
    , m_texts(texts)
    , m_flag(flag)
    , m_layout(new QHBoxLayout(this))
{
    initLayout();
}

QList<LabelEx *> CustomListWidgetMulItem::getLabelList() const
{
    return orvane::liveWidgets(m_labels);
}

QString CustomListWidgetMulItem::getCurrentDevportName() const
{
    return m_devportName;
}

bool CustomListWidgetMulItem::isChecked() const
{
    return false;
}

void CustomListWidgetMulItem::setChecked(bool) { }

QCheckBox *CustomListWidgetMulItem::checkBox() const
{
    return nullptr;
}

void CustomListWidgetMulItem::hideCheckBox() { }

void CustomListWidgetMulItem::slot_dealEnterButtonClick()
{
    Q_EMIT signal_enterButtonClick(this);
}

// Neither goes to the base class, which would hand them on to the list.
void CustomListWidgetMulItem::mousePressEvent(QMouseEvent *) { }
void CustomListWidgetMulItem::mouseReleaseEvent(QMouseEvent *) { }

void CustomListWidgetMulItem::mouseDoubleClickEvent(QMouseEvent *)
{
    Q_EMIT signal_itemDoubleClicked(this);
}

void CustomListWidgetMulItem::initLayout()
{
    m_devportName = m_texts.value(0);
    for (int column = 0; column < m_texts.size(); ++column) {
        auto *label = new LabelEx(this);
        orvane::applyStyleSheet(label, QStringLiteral("font:10pt\"微软雅黑\";"));
        if (m_texts.size() > 2)
            setNarrowColumn(label, column);
        else
            setWideColumn(label, column);
        // Last, and in the font that it is shown in: the label elides its text to the width that
        // it has now.
        label->ensurePolished();
        label->setText(m_texts.at(column));
        m_labels.append(label);
        m_layout->addWidget(label);
    }
}
