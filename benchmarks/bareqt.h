#ifndef BAREQT_H
#define BAREQT_H

#include "structcabinet.h"

#include <QFrame>
#include <QToolButton>
#include <QWidget>

class QCheckBox;
class QHBoxLayout;
class QScrollArea;
class QVBoxLayout;

/// The panels as an author would write them with nothing but Qt: the same widgets, layouts, sizes
/// and painting as the library's, each widget with the sheet that it ends up with, set once.
namespace bareqt
{

/// The counterpart of a ToolButtonEx of the kind CabinetType.
class CabinetButton : public QToolButton
{
    Q_OBJECT

public:
    CabinetButton(QWidget *parent, const StructCabinet &record);

Q_SIGNALS:
    void cabinetPressed(StructCabinet record);
    void cabinetReleased(StructCabinet record);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    StructCabinet m_record;
};

/// The counterpart of a CheckBoxEx.
QCheckBox *newCheckBox(const QString &text, QWidget *parent);

/// The counterpart of a WidgetWithScrollEx.
class Strip : public QFrame
{
    Q_OBJECT

public:
    Strip(const QString &sheet, QWidget *parent);
    void setContent(QWidget *content);

private:
    QToolButton *m_rightArrow = nullptr;
    QWidget *m_rightPlaceholder = nullptr;
    QScrollArea *m_scrollArea = nullptr;
};

/// The counterpart of a RowLineItem.
class Row : public QWidget
{
    Q_OBJECT

public:
    Row(int port, QWidget *parent);
    void addCabinet(const StructCabinet &record);
    void finish();

Q_SIGNALS:
    void portPressed(Row *row);
    void cabinetPressed(StructCabinet record);
    void cabinetReleased(StructCabinet record);

private:
    Strip *m_strip;
    QWidget *m_content = nullptr;
    QList<CabinetButton *> m_cabinets;
};

/// The counterpart of a ToolBarEx with so many buttons, a line and one more button at the right. As
/// there, a host makes the buttons, and the bar takes them into its ends.
QFrame *newToolBar(int leftCount, QWidget *parent);

/// The counterpart of a DrawerItemContent.
class Body : public QWidget
{
    Q_OBJECT

public:
    explicit Body(QWidget *parent = nullptr);
    void addRow(int port, const QList<StructCabinet> &cabinets);

Q_SIGNALS:
    void portPressed(Row *row);
    void cabinetPressed(StructCabinet record);
    void cabinetReleased(StructCabinet record);

private:
    QVBoxLayout *m_column;
    QList<Row *> m_rows;
};

/// The counterpart of a DrawerItem without a body, collapsed at first.
class DrawerEntry : public QWidget
{
    Q_OBJECT

public:
    DrawerEntry(const QString &device, const QString &port, bool isOnline,
                QWidget *parent = nullptr);
    void setSelected(bool isSelected);
    void expand();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void headerClicked(DrawerEntry *entry);
    void rightButtonClicked(DrawerEntry *entry);
    void allChecked(DrawerEntry *entry);

private:
    QWidget *newRightFrame(const QString &device, const QString &port, QWidget *parent);

    bool m_isOnline;
    QToolButton *m_shrinkButton = nullptr;
    QWidget *m_rightFrame = nullptr;
    QToolButton *m_rightButton = nullptr;
};

/// The counterpart of a Drawer.
class Stack : public QWidget
{
    Q_OBJECT

public:
    explicit Stack(QWidget *parent = nullptr);
    void addEntry(DrawerEntry *entry);
    void select(DrawerEntry *entry);

Q_SIGNALS:
    void entryClicked(DrawerEntry *entry);

private:
    QVBoxLayout *m_column;
    QList<DrawerEntry *> m_entries;
};

} // namespace bareqt

#endif // BAREQT_H
