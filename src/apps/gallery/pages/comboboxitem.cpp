#include "page.h"

#include <comboboxitem.h>
#include <labelex.h>

#include <QLayout>

namespace
{

const QString images = QStringLiteral(":/Resource/Images/globalResource/");

Sample makeItem(QWidget *parent, const QString &image, const QString &text, int width = 136)
{
    auto *item = new ComboboxItem(parent, QPixmap(images + image), text, 0);
    item->setFixedSize(width, 32);
    item->layout()->activate();
    item->setText(text); // elided to the width that the label has now
    return Sample(item, item, item->findChild<LabelEx *>());
}

} // namespace

GALLERY_PAGE(ComboboxItem)
{
    page.setPurpose("A row of a combo box's list in image mode: a picture and a text. A press and "
                    "a release on it choose the row.");

    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}});
    page.look("Short", [](QWidget *parent) {
        return makeItem(parent, "drawer/settings_normal.png", "Settings");
    });
    page.look("Elided", [](QWidget *parent) {
        return makeItem(parent, "toolbutton/cursor.png", "Pointer and selection");
    });

    const Sample sample = makeItem(nullptr, "drawer/settings_normal.png", "Settings", 200);
    page.tryIt(sample);
    page.event(qobject_cast<ComboboxItem *>(sample.widget), "showContent",
               &ComboboxItem::showContent);

    using W = ComboboxItem;
    page.text<W>("setText", &W::text, &W::setText);
    page.flag<W>("setEnabled", &W::isEnabled, &W::setEnabled);
    page.number<W>("setIndex", &W::index, &W::setIndex, 0, 99, Reach::TryIt);
    page.choice<W>(
        "setPixMap", {"Settings", "Pointer"}, Page::withoutGetter(0), [](W *item, int index) {
            item->setPixMap(QPixmap(
                images + (index == 0 ? "drawer/settings_normal.png" : "toolbutton/cursor.png")));
        });
    page.color<W>("setFontColor", &W::fontColor, &W::setFontColor);
}
