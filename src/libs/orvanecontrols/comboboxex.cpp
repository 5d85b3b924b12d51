#include "comboboxex.h"

#include "comboboxitem.h"
#include "internal/stylesheet.h"

#include <QFontMetrics>
#include <QListView>
#include <QListWidgetItem>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace
{

QString givenOr(const QString &given, const char *fallback)
{
    return given.isNull() ? QString::fromLatin1(fallback) : given;
}

ComboboxItem *rowWidget(QListWidgetItem *item)
{
    const QListWidget *list = item ? item->listWidget() : nullptr;
    return list ? qobject_cast<ComboboxItem *>(list->itemWidget(item)) : nullptr;
}

} // namespace

ComboBoxEx::ComboBoxEx(QWidget *parent, QString normalImg, QString downImg, QString disabledImg)
    : QComboBox(parent)
    , m_normalArrowImage(
          givenOr(normalImg, ":/Resource/Images/globalResource/combBox/combBox_normal.png"))
    , m_openArrowImage(
          givenOr(downImg, ":/Resource/Images/globalResource/combBox/combBox_down.png"))
    , m_disabledArrowImage(
          givenOr(disabledImg, ":/Resource/Images/globalResource/combBox/combBox_disabled.png"))
    , m_rowWatcher(std::make_unique<QObject>())
{
    setView(new QListView);
    setControlStyleSheet();
    // By signature: the overload is deprecated, and its successor is emitted on other occasions.
    connect(this, SIGNAL(currentIndexChanged(QString)), // clazy:exclude=old-style-connect
            this, SLOT(slot_showTooltip(QString)));
}

void ComboBoxEx::setControlStyleSheet()
{
    orvane::SheetText sheet;
    // The pressed border takes the hover width: hosts rely on the look not depending on
    // setBorderPressedWidth().
    sheet << u"QComboBox{border:" << m_borderWidth << u"px solid " << m_borderNormalColor
          << u";border-radius:" << m_borderRadius << u"px;background:" << m_bgCurrentItemColor
          << u";color:" << m_fontColor
          << u";font: SimSun Arial;}"
             u"QComboBox:hover{border:"
          << m_borderHoverWidth << u"px solid " << m_borderHoverColor << u";background:"
          << m_bgHoverItemColor << u";color:" << m_fontColor
          << u";font: SimSun Arial;}"
             u"QComboBox:checked:pressed{border:"
          << m_borderHoverWidth << u"px solid " << m_borderPressedColor << u";background:"
          << m_bgPressedItemColor << u";color:" << m_fontColor
          << u";font: SimSun Arial;}"
             u"QComboBox:disabled{border:"
          << m_borderWidth << u"px solid " << m_disabledColor << u";background:" << m_disabledColor
          << u";color:" << m_disabledFontColor
          << u";font: SimSun Arial;}"
             u"QComboBox QAbstractItemView{background:"
          << m_bgCurrentItemColor
          << u";}"
             u"QComboBox QAbstractItemView::item{height:"
          << m_itemHeight << u"px;color:" << m_fontColor
          << u";font: SimSun Arial;selection-background-color:" << m_selectionBgColor
          << u";}"
             u"QComboBox::down-arrow{image:url("
          << m_normalArrowImage
          << u");subcontrol-position:right;subcontrol-origin: padding;}"
             u"QComboBox::down-arrow:disabled{image:url("
          << m_disabledArrowImage
          << u");}"
             u"QComboBox::down-arrow:on{image:url("
          << m_openArrowImage
          << u");}"
             u"QComboBox::drop-down{border:0px;min-width: "
          << m_itemWidth
          << u"px;}"
             u"QListView{min-width:"
          << m_listViewWidth
          << u"px;}"
             u"QListView::item {background:"
          << m_bgCurrentItemColor
          << u";}"
             u"QListView::item:hover{background:"
          << m_selectionBgColor << u";}";
    orvane::applyStyleSheet(this, sheet);
}

void ComboBoxEx::addImageItem(QString imagePath, QString text)
{
    if (!m_listWidget) {
        m_listWidget = new QListWidget(this);
        watchRowsOf(m_listWidget);
        setModel(m_listWidget->model());
        setView(m_listWidget);
    }

    const QPixmap pixmap(imagePath);
    m_itemHeight = pixmap.height() + 20;
    auto *row = new ComboboxItem(this, pixmap, text, m_listWidget->count());
    row->setFontColor(m_fontColor);
    connect(row, &ComboboxItem::showContent, this, &ComboBoxEx::onShowContent);

    auto *item = new QListWidgetItem(m_listWidget);
    m_widgetItemList.append(item);
    m_listWidget->setItemWidget(item, row);

    orvane::applyStyleSheet(m_listWidget,
                            orvane::SheetText() << u"background:" << m_bgCurrentItemColor << u";");
    m_hasImageItems = !m_isChangeImg;
    setControlStyleSheet();
}

void ComboBoxEx::setCurrentIndex(int index)
{
    QComboBox::setCurrentIndex(index);
    if (!m_listWidget)
        return;

    if (const ComboboxItem *row = itemWidget(index)) {
        m_currentPixmap = row->pixMap();
        m_currentText = row->text();
    }
    onShowContent(m_currentPixmap, m_currentText, index);
}

void ComboBoxEx::setComboxEnabled(bool enabled)
{
    setEnabled(enabled);
    setNormalAndDisabledPixMap(m_normalPixmap, m_disabledPixmap);
}

void ComboBoxEx::setNormalAndDisabledPixMap(QPixmap normal, QPixmap disabled)
{
    m_normalPixmap = std::move(normal);
    m_disabledPixmap = std::move(disabled);
    m_defaultPixmap = isEnabled() ? m_normalPixmap : m_disabledPixmap;
    update();
}

QString ComboBoxEx::getItemText(int index)
{
    const ComboboxItem *row = itemWidget(index);
    return row ? row->text() : QString();
}

void ComboBoxEx::removeItem(int index)
{
    QComboBox::removeItem(index);
}

void ComboBoxEx::clear()
{
    // Out of the list before each is deleted, so that nothing is left to forget or to renumber.
    const QList<QListWidgetItem *> items = std::exchange(m_widgetItemList, {});
    qDeleteAll(items);
    QComboBox::clear();
}

void ComboBoxEx::setIsChangeImg(bool isChangeImg)
{
    m_isChangeImg = isChangeImg;
    update();
}

void ComboBoxEx::setDefaultPixMap(QPixmap pixmap)
{
    m_defaultPixmap = std::move(pixmap);
    update();
}

void ComboBoxEx::setBgCurrentItemColor(const QColor &color)
{
    m_bgCurrentItemColor = color;
    setControlStyleSheet();
}

QColor ComboBoxEx::getBgCurrentItemColor() const
{
    return m_bgCurrentItemColor;
}

void ComboBoxEx::setBgHoverItemColor(const QColor &color)
{
    m_bgHoverItemColor = color;
    setControlStyleSheet();
}

QColor ComboBoxEx::getBgHoverItemColor() const
{
    return m_bgHoverItemColor;
}

void ComboBoxEx::setBgPressedItemColor(const QColor &color)
{
    m_bgPressedItemColor = color;
    setControlStyleSheet();
}

void ComboBoxEx::setBorderPressedColor(const QColor &color)
{
    m_borderPressedColor = color;
    setControlStyleSheet();
}

void ComboBoxEx::setBorderNormalColor(const QColor &color)
{
    m_borderNormalColor = color;
    setControlStyleSheet();
}

void ComboBoxEx::setBorderHoverColor(const QColor &color)
{
    m_borderHoverColor = color;
    setControlStyleSheet();
}

QColor ComboBoxEx::getBorderHoverColor() const
{
    return m_borderHoverColor;
}

void ComboBoxEx::setFontColor(const QColor &color)
{
    m_fontColor = color;
    setControlStyleSheet();
}

QColor ComboBoxEx::getFontColor() const
{
    return m_fontColor;
}

void ComboBoxEx::setDisabledFontColor(const QColor &color)
{
    m_disabledFontColor = color;
    setControlStyleSheet();
}

QColor ComboBoxEx::getDisabledFontColor() const
{
    return m_disabledFontColor;
}

void ComboBoxEx::setSelectionBgColor(const QColor &color)
{
    m_selectionBgColor = color;
    setControlStyleSheet();
}

QColor ComboBoxEx::getSelectionBgColor() const
{
    return m_selectionBgColor;
}

void ComboBoxEx::setItemHeight(int height)
{
    m_itemHeight = height;
    setControlStyleSheet();
}

int ComboBoxEx::getItemHeight() const
{
    return m_itemHeight;
}

void ComboBoxEx::setItemWidth(int width)
{
    m_itemWidth = width;
    setControlStyleSheet();
}

int ComboBoxEx::getItemWidth() const
{
    return m_itemWidth;
}

void ComboBoxEx::setListViewWidth(int width)
{
    m_listViewWidth = width;
    setControlStyleSheet();
}

int ComboBoxEx::getListViewWidth() const
{
    return m_listViewWidth;
}

void ComboBoxEx::setBorderWidth(int width)
{
    m_borderWidth = width;
    setControlStyleSheet();
}

int ComboBoxEx::getBorderWidth() const
{
    return m_borderWidth;
}

void ComboBoxEx::setBorderHoverWidth(int width)
{
    m_borderHoverWidth = width;
    setControlStyleSheet();
}

int ComboBoxEx::getBorderHoverWidth() const
{
    return m_borderHoverWidth;
}

void ComboBoxEx::setBorderPressedWidth(int width)
{
    m_borderPressedWidth = width;
    setControlStyleSheet();
}

int ComboBoxEx::getBorderPressedWidth() const
{
    return m_borderPressedWidth;
}

void ComboBoxEx::setBorderRadius(const int &radius)
{
    m_borderRadius = radius;
    setControlStyleSheet();
}

void ComboBoxEx::setPListWidget(QListWidget *list)
{
    m_listWidget = list;
    watchRowsOf(list);
}

QListWidget *ComboBoxEx::getPListWidget() const
{
    return m_listWidget;
}

QString ComboBoxEx::getText() const
{
    return m_currentText;
}

void ComboBoxEx::setWidgetItemList(const QList<QListWidgetItem *> &items)
{
    m_widgetItemList = items;
    const QListWidget *watched = nullptr;
    for (const QListWidgetItem *item : items) {
        if (item && item->listWidget() != watched) {
            watched = item->listWidget();
            watchRowsOf(watched);
        }
    }
}

QList<QListWidgetItem *> ComboBoxEx::getWidgetItemList() const
{
    return m_widgetItemList;
}

void ComboBoxEx::setIsDrawText(bool isDrawText)
{
    m_isDrawText = isDrawText;
}

bool ComboBoxEx::getIsDrawText() const
{
    return m_isDrawText;
}

QString ComboBoxEx::fromColorToStr(QColor color)
{
    return orvane::colorText(color);
}

void ComboBoxEx::paintEvent(QPaintEvent *event)
{
    QComboBox::paintEvent(event);
    if (!m_isChangeImg && !m_hasImageItems)
        return;

    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // From right to left the arrow is at the left, and picture and text begin at the right.
    const auto mirrored = [this](const QRect &place) {
        return QStyle::visualRect(layoutDirection(), rect(), place);
    };
    if (m_isChangeImg) {
        // The "Double" images are drawn at their single size.
        painter.drawPixmap(
            mirrored(QRect(0, 0, m_defaultPixmap.width() / 2, m_defaultPixmap.height() / 2)),
            m_defaultPixmap);
        return;
    }
    constexpr int imageLeft = 12;
    constexpr int textGap = 16;
    const int imageWidth = m_currentPixmap.width();
    const int imageHeight = m_currentPixmap.height();
    painter.drawPixmap(
        mirrored(QRect(imageLeft, (height() - imageHeight) / 2 + 1, imageWidth, imageHeight - 2)),
        m_currentPixmap);
    if (m_isDrawText) {
        const int baseline = (painter.fontMetrics().height() + height()) / 2 - 4;
        const int left = imageWidth + textGap;
        const int textWidth = painter.fontMetrics().horizontalAdvance(m_currentText);
        painter.drawText(isRightToLeft() ? width() - left - textWidth : left, baseline,
                         m_currentText);
    }
}

void ComboBoxEx::onShowContent(QPixmap pixmap, QString text, int index)
{
    m_currentPixmap = std::move(pixmap);
    m_currentText = std::move(text);
    const QPointer<ComboBoxEx> guard(this);
    QComboBox::setCurrentIndex(index);
    if (guard)
        Q_EMIT signal_clickedItem(index);
    if (guard)
        hidePopup();
}

void ComboBoxEx::slot_showTooltip(QString strData)
{
    if (m_hasImageItems)
        return;
    // What arrow and border take of the width.
    constexpr int reservedWidth = 19;
    const bool fits = fontMetrics().horizontalAdvance(strData) < width() - reservedWidth;
    setToolTip(fits ? QString() : strData);
}

ComboboxItem *ComboBoxEx::itemWidget(int index) const
{
    return rowWidget(m_widgetItemList.value(index));
}

void ComboBoxEx::watchRowsOf(const QListWidget *list)
{
    if (!list)
        return;
    // Rows also go by way of the model, the list or the item, none of which this class sees.
    const QAbstractItemModel *model = list->model();
    model->disconnect(m_rowWatcher.get());
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, m_rowWatcher.get(),
            [this, list](const QModelIndex &, int first, int last) {
                for (int row = first; row <= last && !m_widgetItemList.isEmpty(); ++row)
                    m_widgetItemList.removeOne(list->item(row));
            });
    connect(model, &QAbstractItemModel::rowsRemoved, m_rowWatcher.get(),
            [this, list](const QModelIndex &, int first) {
                // An empty item list means that clear() is at work on the rows.
                for (int row = first; row < list->count() && !m_widgetItemList.isEmpty(); ++row) {
                    if (ComboboxItem *widget = rowWidget(list->item(row)))
                        widget->setIndex(row);
                }
            });
    // The list itself may be half destroyed when its model is reset for the last time.
    connect(model, &QAbstractItemModel::modelAboutToBeReset, m_rowWatcher.get(), [this, list] {
        m_widgetItemList.erase(std::remove_if(m_widgetItemList.begin(), m_widgetItemList.end(),
                                              [list](const QListWidgetItem *item) {
                                                  return item && item->listWidget() == list;
                                              }),
                               m_widgetItemList.end());
    });
}
