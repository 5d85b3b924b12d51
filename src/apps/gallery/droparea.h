#ifndef GALLERY_DROPAREA_H
#define GALLERY_DROPAREA_H

#include <structcabinet.h>

#include <QList>
#include <QPair>
#include <QString>
#include <QWidget>

class QGridLayout;
class QLabel;

/// Where cabinets and senders can be dropped: shows what arrived, as a host's layout view would get
/// it.
class DropArea : public QWidget
{
    Q_OBJECT

public:
    explicit DropArea(QWidget *parent = nullptr);

Q_SIGNALS:
    void cabinetArrived(StructCabinet record);
    void textArrived(QString text);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void showFields(const QString &title, const QList<QPair<QString, QString>> &fields);
    void setAwaiting(bool awaiting);

    QLabel *m_title;
    QGridLayout *m_fields;
    bool m_isAwaiting = false;
};

#endif // GALLERY_DROPAREA_H
