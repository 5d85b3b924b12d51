#ifndef TREEVIEWEX_H
#define TREEVIEWEX_H

#include "orvanecontrolsglobal.h"

#include <QString>
#include <QTreeWidget>

/**
 * A dark tree of cabinet models: the top-level items are the host's own, and below them stand rows
 * that are checkable and drawn by a TreeItem.
 *
 * A click anywhere on such a row checks it, or unchecks it if it was checked. The tree has no
 * signals of its own: connect to itemChanged() and itemClicked(). Items may be deleted in both, the
 * tree itself only by deleteLater(). When what it scrolls sideways changes in width, it goes to its
 * right end. Every change of an item and of the sideways range writes a debug message.
 */
class ORVANECONTROLS_EXPORT TreeViewEx : public QTreeWidget
{
    Q_OBJECT

public:
    /// Builds an empty tree without a header, owned by \a parent.
    explicit TreeViewEx(QWidget *parent = nullptr);

    /// Adds a row for the model \a name of \a size in pixels of the wall at the end of
    /// \a parentItem. The row has the check state \a state and carries \a object, which stays the
    /// host's and may be null. Its TreeItem is the itemWidget() of column 0.
    ///
    /// The only column keeps at least the width that the tree has now, less 30 pixels, until the
    /// next row is added: give the tree its width first, or it scrolls sideways once it is
    /// narrower.
    ///
    /// A null pointer and an item of another tree add nothing. An item that is in no tree has to
    /// be put into this one next; the tree would not hear of its deletion.
    void addTreeItem(QTreeWidgetItem *parentItem, QString name, QSize size, QObject *object,
                     Qt::CheckState state);
    /// Removes all items.
    void removeAllItem();
    /// Applies the tree's style sheet, which is in force from the beginning, again.
    void setTreeWidgetStyleSheet();

    /// The style sheet that the names of the rows to come are given. \see setStrTitleStyle()
    QString strTitleStyle() const;
    /// Sets the style sheet that the names of the rows to come are given. A null text, the default,
    /// leaves them that of TreeItem. \see strTitleStyle()
    void setStrTitleStyle(const QString &style);
    /// The style sheet that the sizes of the rows to come are given. \see setStrContentStyle()
    QString strContentStyle() const;
    /// Sets the style sheet that the sizes of the rows to come are given. A null text, the default,
    /// leaves them that of TreeItem. \see strContentStyle()
    void setStrContentStyle(const QString &style);

protected:
    /// Takes in new rows. Their layout is put off until the tree paints, so that many rows with
    /// widgets cost no more than their number.
    void rowsInserted(const QModelIndex &parent, int start, int end) override;

private Q_SLOTS:
    void on_itemClicked(QTreeWidgetItem *item, int column);
    void on_rangeChanged(int min, int max);
    void slot_itemChanged(QTreeWidgetItem *item, int column);

private:
    QString m_titleStyle;
    QString m_contentStyle;
};

#endif // TREEVIEWEX_H
