#include "pagelist.h"

#define GALLERY_DECLARE(group, name) void build##name##Page(Page &page);
GALLERY_PAGES(GALLERY_DECLARE)
#undef GALLERY_DECLARE

const QVector<PageInfo> &pageList()
{
#define GALLERY_ENTRY(group, name) {group, #name, build##name##Page},
    static const QVector<PageInfo> pages = {GALLERY_PAGES(GALLERY_ENTRY)};
#undef GALLERY_ENTRY
    return pages;
}

const PageInfo *findPage(const QString &name)
{
    for (const PageInfo &page : pageList()) {
        if (page.name.compare(name, Qt::CaseInsensitive) == 0)
            return &page;
    }
    return nullptr;
}
