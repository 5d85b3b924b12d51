#ifndef ORVANE_TESTS_COUNTINGDELEGATE_H
#define ORVANE_TESTS_COUNTINGDELEGATE_H

#include <QStyledItemDelegate>

/// Counts how often a view asks for the size of a row and places the widget of one: what it does
/// for each row when it goes through all of them.
class CountingDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    mutable int count = 0;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        ++count;
        return QStyledItemDelegate::sizeHint(option, index);
    }
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override
    {
        ++count;
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
    }
};

#endif // ORVANE_TESTS_COUNTINGDELEGATE_H
