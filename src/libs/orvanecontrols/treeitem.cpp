#include "treeitem.h"

#include "definecommondata.h"
#include "internal/stylesheet.h"

#include <QLabel>
#include <QVBoxLayout>

namespace
{

QLabel *makeLine(const QString &text, QStringView color, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setAttribute(Qt::WA_TranslucentBackground);
    label->setText(text);
    orvane::SheetText sheet;
    sheet << u"font:" << DefineCommonData::getNormalFont() << u";color: " << color << u";";
    orvane::applyStyleSheet(label, sheet);
    return label;
}

QString sizeText(QSize size)
{
    return QString::number(size.width()) + "x" + QString::number(size.height());
}

} // namespace

TreeItem::TreeItem(QString name, QSize size, QWidget *parent)
    : QWidget(parent)
    , m_titleLabel(makeLine(name, u"rgb(210, 210, 210)", this))
    , m_sizeLabel(makeLine(sizeText(size), u"rgb(153, 153, 153)", this))
    , m_layout(new QVBoxLayout(this))
    , m_size(size)
{
    m_layout->addWidget(m_titleLabel);
    m_layout->addWidget(m_sizeLabel);
    m_layout->setSpacing(0);
    m_layout->setContentsMargins(5, 5, 5, 5);
}

void TreeItem::setTilteStyleSheet(QString sheet)
{
    if (!sheet.isNull())
        orvane::applyStyleSheet(m_titleLabel, sheet);
}

void TreeItem::setContentStyleSheet(QString sheet)
{
    if (!sheet.isNull())
        orvane::applyStyleSheet(m_sizeLabel, sheet);
}

QString TreeItem::getCabinetName() const
{
    return m_titleLabel->text();
}

void TreeItem::setCabinetName(QString name)
{
    m_titleLabel->setText(name);
}

QSize TreeItem::getCabinetSize() const
{
    return m_size;
}

QObject *TreeItem::getObject() const
{
    return m_object;
}

void TreeItem::setObject(QObject *object)
{
    m_object = object;
}

void TreeItem::resizeEvent(QResizeEvent *) { }
