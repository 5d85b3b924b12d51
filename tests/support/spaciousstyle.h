#ifndef ORVANE_TESTS_SPACIOUSSTYLE_H
#define ORVANE_TESTS_SPACIOUSSTYLE_H

#include <QProxyStyle>

/// A style that keeps more room between the parts of a layout, and around them, than any class of
/// the library asks for.
class SpaciousStyle : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        const bool isRoom = metric >= PM_LayoutLeftMargin && metric <= PM_LayoutVerticalSpacing;
        return isRoom ? 57 : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

#endif // ORVANE_TESTS_SPACIOUSSTYLE_H
