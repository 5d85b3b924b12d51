#ifndef ORVANE_TESTS_LAYOUTCHECK_H
#define ORVANE_TESTS_LAYOUTCHECK_H

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QLabel>
#include <QStringList>

/// The texts of all labels and buttons that are seen on \a page and do not have the room that they
/// need, or reach out of their parent. What scrolls is left out: it may be anywhere.
inline QStringList cutTexts(const QWidget *page)
{
    QStringList cut;
    const auto isScrolled = [page](const QWidget *widget) {
        for (; widget && widget != page; widget = widget->parentWidget()) {
            if (qobject_cast<const QAbstractScrollArea *>(widget))
                return true;
        }
        return false;
    };
    const QList<QWidget *> widgets = page->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        if (!widget->isVisible() || (!label && !button) || isScrolled(widget))
            continue;
        const QString text = label ? label->text() : button->text();
        const QFontMetrics metrics = widget->fontMetrics();
        QSize needed = text.isEmpty() ? QSize(0, 0) : metrics.size(Qt::TextShowMnemonic, text);
        if (label && label->wordWrap())
            needed = QSize(0, label->heightForWidth(label->width()));
        if (widget->width() < needed.width() || widget->height() < needed.height()
            || !widget->parentWidget()->rect().contains(widget->geometry()))
            cut.append(text);
    }
    return cut;
}

#endif // ORVANE_TESTS_LAYOUTCHECK_H
