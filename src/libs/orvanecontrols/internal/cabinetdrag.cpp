#include "cabinetdrag.h"

#include "../structcabinet.h"

#include <QMimeData>
#include <QPainter>
#include <QPixmap>

namespace orvane
{

QMimeData *cabinetMimeData(const StructCabinet &record)
{
    auto *data = new QMimeData;
    data->setData(QString::fromLatin1(cabinetMimeFormat),
                  QByteArray(reinterpret_cast<const char *>(&record), sizeof(StructCabinet)));
    return data;
}

QPixmap cabinetDragPicture()
{
    return QPixmap(
        QStringLiteral(":/Resource/Images/globalResource/toolbutton/cabinetchanged.png"));
}

QMimeData *senderMimeData(const QString &text)
{
    auto *data = new QMimeData;
    data->setText(text);
    return data;
}

QPixmap senderDragPicture(const QString &text, bool hasData)
{
    QPixmap picture(hasData ? QStringLiteral(":/Resource/Images/globalResource/vSender/clear.png")
                            : QStringLiteral(":/Resource/Images/globalResource/vSender/save.png"));
    QPainter painter(&picture);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawText(QRect(15, 5, 20, 20), Qt::AlignCenter, text);
    return picture;
}

} // namespace orvane
