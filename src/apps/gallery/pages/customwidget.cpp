#include "page.h"

#include <customwidget.h>

#include <QLabel>
#include <QToolButton>

namespace
{

CustomWidget *makeRow(QWidget *parent, int width, int height)
{
    auto *widget = new CustomWidget(parent);
    widget->setFixedSize(width, height);
    return widget;
}

} // namespace

GALLERY_PAGE(CustomWidget)
{
    page.setPurpose("A fixed row of a dark block, a blue label and a small tool button. It has no "
                    "setters: a host finds the parts among the children.");

    page.setStates({{"Normal", State::Normal}, {"Disabled", State::Disabled}});
    page.look("As made", [](QWidget *parent) { return makeRow(parent, 200, 28); });
    page.look("With a host's parts", [](QWidget *parent) {
        CustomWidget *widget = makeRow(parent, 200, 28);
        const QList<QLabel *> labels = widget->findChildren<QLabel *>();
        labels.first()->setText("1");
        labels.first()->setAlignment(Qt::AlignCenter);
        labels.last()->setText(" Port 1, online");
        widget->findChild<QToolButton *>()->setText("×");
        return widget;
    });

    CustomWidget *row = page.tryIt(makeRow(nullptr, 240, 36));
    page.event(row->findChild<QToolButton *>(), "clicked", &QToolButton::clicked);
}
