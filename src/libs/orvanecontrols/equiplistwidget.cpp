#include "equiplistwidget.h"

#include "customlistwidgetmulitem.h"
#include "definecommondata.h"
#include "internal/listrows.h"
#include "internal/livelist.h"
#include "internal/stylesheet.h"
#include "listwidgetex.h"
#include "listwidgettitle.h"

#include <QButtonGroup>
#include <QEvent>
#include <QLabel>
#include <QMovie>
#include <QVBoxLayout>

namespace
{

constexpr int shownHeight = 135;
constexpr int foldedHeight = 32;

} // namespace

EquipListWidget::EquipListWidget(QString title, QWidget *parent)
    : QWidget(parent)
    , m_title(new ListWidgetTitle(title, this))
    , m_list(new ListWidgetEx(this))
    , m_buttonGroup(std::make_unique<QButtonGroup>())
{
    // Signal spies and queued connections look the type up by name.
    qRegisterMetaType<CustomListWidgetMulItem *>();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_title);
    layout->addWidget(m_list);
    layout->addStretch(10);
    layout->setSpacing(0);
    setFixedHeight(shownHeight);
    initAnimation();

    connect(m_title, &ListWidgetTitle::signal_HideShow, this, &EquipListWidget::slot_ShowList);
    connect(m_title, &ListWidgetTitle::signal_Refresh, this, &EquipListWidget::signal_RefEquipInfo);
    connect(m_title, &ListWidgetTitle::signal_Setting, this, &EquipListWidget::signal_Setting);
}

EquipListWidget::~EquipListWidget() = default;

void EquipListWidget::setTitle(QString title)
{
    m_title->setTitle(title);
}

void EquipListWidget::setTitleVisiable(bool visible)
{
    m_title->setVisible(visible);
}

void EquipListWidget::setIconVisible(bool visible)
{
    m_title->setIconVisible(visible);
}

void EquipListWidget::hideRefIcon()
{
    m_title->hideRefIcon();
}

void EquipListWidget::setRefLabelText(QString text)
{
    m_overlayText->setText(text);
}

CustomListWidgetMulItem *EquipListWidget::addCustomItem(QStringList texts, bool flag)
{
    if (!m_list)
        return nullptr;
    auto *item = new CustomListWidgetMulItem(texts, m_list->viewport(), flag);
    connect(item, &CustomListWidgetMulItem::signal_itemDoubleClicked, this,
            &EquipListWidget::slot_deviceItemDoubleClicked);
    connect(item, &CustomListWidgetMulItem::signal_enterButtonClick, this,
            &EquipListWidget::slot_emitSettingData);
    orvane::appendRow(m_list, item);
    m_items.append(item);
    return item;
}

void EquipListWidget::removeCustomItem(int index)
{
    orvane::dropDeleted(m_items);
    if (m_list)
        orvane::removeRow(m_list, index);
}

void EquipListWidget::clearAllCustomItems()
{
    m_items.clear();
    if (!m_list)
        return;
    orvane::removeAllRows(m_list);
    m_list->clear();
}

QList<CustomListWidgetMulItem *> EquipListWidget::getItems() const
{
    return orvane::liveWidgets(m_items);
}

void EquipListWidget::hideCheckBox()
{
    for (int row = 0; m_list && row < m_list->count(); ++row) {
        const QModelIndex index = m_list->model()->index(row, 0);
        if (auto *item = qobject_cast<CustomListWidgetMulItem *>(m_list->indexWidget(index)))
            item->hideCheckBox();
    }
}

ListWidgetEx *EquipListWidget::getListWidget() const
{
    return m_list;
}

void EquipListWidget::slot_ShowList(bool bShowList)
{
    if (m_list)
        m_list->setVisible(bShowList);
    m_title->changeDropDownBtn(bShowList);
    setFixedHeight(bShowList ? shownHeight : foldedHeight);
}

void EquipListWidget::slot_ShowRefAnimation()
{
    coverList();
    m_overlay->show();
    m_movie->start();
}

void EquipListWidget::slot_StopRefAnimation()
{
    // Not isVisible(): a host may stop it on a page that is not seen at the moment.
    if (m_overlay->isHidden())
        return;
    m_movie->stop();
    m_overlay->hide();
}

void EquipListWidget::slot_deviceItemDoubleClicked(CustomListWidgetMulItem *item)
{
    Q_EMIT signal_itemDoubleClicked(item);
}

void EquipListWidget::slot_emitSettingData(CustomListWidgetMulItem *item)
{
    Q_EMIT signal_everySetting(item);
}

bool EquipListWidget::eventFilter(QObject *watched, QEvent *event)
{
    // The animation may have been started before the list got its place.
    if ((event->type() == QEvent::Move || event->type() == QEvent::Resize) && watched == m_list)
        coverList();
    return QWidget::eventFilter(watched, event);
}

void EquipListWidget::initAnimation()
{
    m_overlay = new QWidget(this);
    m_overlayText = new QLabel(m_overlay);
    m_overlayText->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter | Qt::AlignBottom);
    orvane::applyStyleSheet(m_overlayText,
                            orvane::SheetText()
                                << u"font:" << DefineCommonData::getNormalFont() << u";");
    m_overlayImage = new QLabel(m_overlay);
    m_overlayImage->setAlignment(Qt::AlignCenter);
    m_movie =
        new QMovie(":/Resource/Images/globalResource/listwidget/Loading_2.gif", QByteArray(), this);
    m_overlayImage->setMovie(m_movie);

    auto *layout = new QVBoxLayout(m_overlay);
    layout->addWidget(m_overlayText, 4);
    layout->addWidget(m_overlayImage, 6);

    coverList();
    m_overlay->setWindowOpacity(0.9); // counts if a host makes a window of it
    m_overlay->hide();
    m_list->installEventFilter(this);
}

void EquipListWidget::coverList()
{
    if (m_list)
        m_overlay->setGeometry(m_list->geometry());
}
