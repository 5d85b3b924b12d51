#ifndef CUSTOMLISTWIDGETMULITEM_H
#define CUSTOMLISTWIDGETMULITEM_H

#include "orvanecontrolsglobal.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

class LabelEx;
class QCheckBox;
class QHBoxLayout;

/**
 * A row of an equipment list: texts in columns, of which the first one names the device or its
 * port.
 *
 * More than two texts stand in columns of 206, 110 and 40 pixels, and whatever space there is for
 * the others. Of one or two texts the first takes 256 pixels and the second stands at the right. A
 * text that is wider than its column is elided and becomes the tool tip. Where a column has no
 * width of its own, 100 pixels count, whatever space there is later: call setText() of its label
 * again.
 *
 * Presses and releases end here, so that they select no row in the list; only a double click is
 * reported. The row, its list included, may be deleted in both signals.
 */
class ORVANECONTROLS_EXPORT CustomListWidgetMulItem : public QWidget
{
    Q_OBJECT

public:
    /// Builds a row of \a texts, owned by \a parent. The row keeps \a flag and makes no use of it.
    CustomListWidgetMulItem(QStringList texts, QWidget *parent, bool flag);

    /// The labels from left to right, without deleted ones.
    QList<LabelEx *> getLabelList() const;
    /// The first of the texts that the row was built with, empty if there was none.
    QString getCurrentDevportName() const;

    /// Always false: the row has no check box.
    bool isChecked() const;
    /// Does nothing: the row has no check box.
    void setChecked(bool checked);
    /// Always null: the row has no check box.
    QCheckBox *checkBox() const;
    /// Does nothing: the row has no check box.
    void hideCheckBox();

Q_SIGNALS:
    /// \a item was double-clicked, with any mouse button.
    void signal_itemDoubleClicked(CustomListWidgetMulItem *item);
    /// The host called slot_dealEnterButtonClick() of \a item; the row itself never does.
    void signal_enterButtonClick(CustomListWidgetMulItem *item);

public Q_SLOTS:
    /// Emits signal_enterButtonClick(), for a button that the host adds to the row.
    void slot_dealEnterButtonClick();

protected:
    /// Swallows the press, so that it selects no row.
    void mousePressEvent(QMouseEvent *event) override;
    /// Swallows the release, so that it selects no row.
    void mouseReleaseEvent(QMouseEvent *event) override;
    /// Emits signal_itemDoubleClicked(), whatever the button.
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void initLayout();

    QStringList m_texts;
    bool m_flag{};
    QVector<QPointer<LabelEx>> m_labels;
    QHBoxLayout *m_layout = nullptr;
    QString m_devportName;
};

#endif // CUSTOMLISTWIDGETMULITEM_H
