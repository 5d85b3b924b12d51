#ifndef GALLERY_PAGELIST_H
#define GALLERY_PAGELIST_H

#include <QString>
#include <QVector>

class Page;

/// The pages in the order of the navigation. A new page is a file in pages/ that says
/// `GALLERY_PAGE(Name) { ... }` and a line here: its group and its name.
#define GALLERY_PAGES(PAGE)                                                                        \
    PAGE("Basic controls", CheckBoxEx)                                                             \
    PAGE("Basic controls", RadioButtonEx)                                                          \
    PAGE("Basic controls", LabelEx)                                                                \
    PAGE("Basic controls", PushButtonEx)                                                           \
    PAGE("Basic controls", SpinBoxEx)                                                              \
    PAGE("Basic controls", DoubleSpinBoxEx)                                                        \
    PAGE("Basic controls", LineEditEx)                                                             \
    PAGE("Basic controls", SliderEx)                                                               \
    PAGE("Basic controls", SliderExMouse)                                                          \
    PAGE("Basic controls", ScrollBarEx)                                                            \
    PAGE("Basic controls", ComboBoxEx)                                                             \
    PAGE("Basic controls", ComboboxItem)                                                           \
    PAGE("Foundation", DefineCommonData)                                                           \
    PAGE("Foundation", Images)

struct PageInfo {
    QString group;
    QString name;
    void (*build)(Page &page);
};

/// All pages.
const QVector<PageInfo> &pageList();
/// The page of that name, whatever its letters' case; null if there is none.
const PageInfo *findPage(const QString &name);

#endif // GALLERY_PAGELIST_H
