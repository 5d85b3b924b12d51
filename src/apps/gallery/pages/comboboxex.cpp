#include "page.h"
#include "pointers.h"

#include <comboboxex.h>

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QHoverEvent>
#include <QPainter>

namespace
{

const QString images = QStringLiteral(":/Resource/Images/globalResource/");

ComboBoxEx *makeTextBox(QWidget *parent, int width)
{
    auto *box = new ComboBoxEx(parent);
    box->setFixedSize(width, theme::controlHeight);
    box->addItems({"RGB", "YUV 4:4:4", "YUV 4:2:2"});
    return box;
}

ComboBoxEx *makeImageBox(QWidget *parent, int width, bool drawText)
{
    auto *box = new ComboBoxEx(parent);
    box->setFixedSize(width, 32);
    box->addImageItem(images + "drawer/settings_normal.png", "Settings");
    box->addImageItem(images + "toolbutton/cursor.png", "Pointer");
    box->addImageItem(images + "toolbutton/mouseAdd.png", "Add");
    box->setIsDrawText(drawText);
    box->setCurrentIndex(0);
    return box;
}

ComboBoxEx *makePictureBox(QWidget *parent, int width)
{
    auto *box = new ComboBoxEx(parent);
    box->setFixedSize(width, 40);
    box->setIsChangeImg(true);
    box->addItems({"", ""}); // their texts would stand under the picture
    box->setNormalAndDisabledPixMap(QPixmap(images + "addBtn/box-add_normalDouble.png"),
                                    QPixmap(images + "addBtn/box-add_disableDouble.png"));
    return box;
}

/// A box's list as it opens, painted in place instead of in a window of its own.
class OpenList : public QWidget
{
public:
    OpenList(QWidget *parent, ComboBoxEx *box)
        : QWidget(parent)
        , m_box(box)
    {
        box->setParent(this);
        box->hide();
        layOut();
    }

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::HoverMove) {
            auto *hover = static_cast<QHoverEvent *>(event);
            QHoverEvent forwarded(QEvent::HoverMove, hover->posF(), hover->oldPosF());
            QCoreApplication::sendEvent(m_box->view()->viewport(), &forwarded);
        }
        return QWidget::event(event);
    }

    void paintEvent(QPaintEvent *) override
    {
        layOut(); // rows change their height with the sheet
        QPainter(this).drawPixmap(0, 0, list()->grab());
    }

private:
    QWidget *list() const { return m_box->view()->parentWidget(); }

    void layOut()
    {
        QAbstractItemView *view = m_box->view();
        list()->ensurePolished();
        view->ensurePolished();
        int height = 0;
        for (int row = 0; row < m_box->count(); ++row)
            height += view->sizeHintForRow(row);
        const int frame = 2 * view->frameWidth();
        const QSize size(m_box->width(), height + frame);
        list()->resize(size);
        setFixedSize(size);
    }

    ComboBoxEx *m_box;
};

Sample openList(QWidget *parent, ComboBoxEx *box)
{
    return Sample(new OpenList(parent, box), box, box);
}

QPoint onSecondRow(QWidget *list)
{
    return {list->width() / 2, list->height() / 2};
}

} // namespace

GALLERY_PAGE(ComboBoxEx)
{
    page.setPurpose("A drop-down in two modes: plain text, or image rows that the closed box "
                    "repeats. It can also show one picture whatever is chosen.");

    page.setStates({{"Normal", State::Normal},
                    {"Hover", State::Hover, pointers::onCentre},
                    {"Focus", State::Focus},
                    {"Disabled", State::Disabled}});
    page.look("Text", [](QWidget *parent) { return makeTextBox(parent, 112); });
    page.look("Image and text", [](QWidget *parent) { return makeImageBox(parent, 112, true); });
    page.look("Image", [](QWidget *parent) { return makeImageBox(parent, 112, false); });
    page.look("One picture", [](QWidget *parent) { return makePictureBox(parent, 112); });

    page.setStates({{"Open", State::Normal}, {"Row hovered", State::Hover, onSecondRow}},
                   "Open list");
    page.look("Text", [](QWidget *parent) { return openList(parent, makeTextBox(parent, 112)); });
    page.look("Image and text",
              [](QWidget *parent) { return openList(parent, makeImageBox(parent, 112, true)); });

    ComboBoxEx *text = page.tryIt(makeTextBox(nullptr, 160), "Text");
    ComboBoxEx *image = page.tryIt(makeImageBox(nullptr, 160, true), "Image and text");
    text->setIsDrawText(true); // as the other one; it draws no text of its own in text mode
    for (ComboBoxEx *box : {text, image}) {
        page.event(box, "signal_clickedItem", &ComboBoxEx::signal_clickedItem);
        page.event(box, "currentIndexChanged", QOverload<int>::of(&QComboBox::currentIndexChanged));
        page.event(box, "activated", QOverload<int>::of(&QComboBox::activated));
    }

    using W = ComboBoxEx;
    page.flag<W>("setComboxEnabled", &W::isEnabled, &W::setComboxEnabled);
    page.flag<W>("setIsDrawText", &W::getIsDrawText, [](W *box, bool drawText) {
        box->setIsDrawText(drawText);
        box->update();
    });
    page.number<W>("setItemHeight", &W::getItemHeight, &W::setItemHeight, 12, 96);
    page.number<W>("setItemWidth", &W::getItemWidth, &W::setItemWidth, 0, 96);
    page.number<W>("setListViewWidth", &W::getListViewWidth, &W::setListViewWidth, 0, 320);
    page.number<W>("setBorderWidth", &W::getBorderWidth, &W::setBorderWidth, 0, 6);
    page.number<W>("setBorderHoverWidth", &W::getBorderHoverWidth, &W::setBorderHoverWidth, 0, 6);
    page.number<W>("setBorderPressedWidth", &W::getBorderPressedWidth, &W::setBorderPressedWidth, 0,
                   6);
    page.number<W>("setBorderRadius", Page::withoutGetter(3), &W::setBorderRadius, 0, 14);
    page.color<W>("setBgCurrentItemColor", &W::getBgCurrentItemColor, &W::setBgCurrentItemColor);
    page.color<W>("setBgHoverItemColor", &W::getBgHoverItemColor, &W::setBgHoverItemColor);
    page.color<W>("setBgPressedItemColor", Page::withoutGetter(QColor(69, 69, 69)),
                  &W::setBgPressedItemColor);
    page.color<W>("setSelectionBgColor", &W::getSelectionBgColor, &W::setSelectionBgColor);
    page.color<W>("setBorderNormalColor", Page::withoutGetter(QColor(128, 128, 128)),
                  &W::setBorderNormalColor);
    page.color<W>("setBorderHoverColor", &W::getBorderHoverColor, &W::setBorderHoverColor);
    page.color<W>("setBorderPressedColor", Page::withoutGetter(QColor(128, 128, 128)),
                  &W::setBorderPressedColor);
    page.color<W>("setFontColor", &W::getFontColor, &W::setFontColor);
    page.color<W>("setDisabledFontColor", &W::getDisabledFontColor, &W::setDisabledFontColor);
}
