#ifndef GALLERY_CABINETS_H
#define GALLERY_CABINETS_H

#include <structcabinet.h>

#include <QList>
#include <QPair>
#include <QString>

class DrawerItem;
class OfflinePortItemFrame;
class QWidget;
class RowLineItem;
class ToolButtonEx;

/// The cabinets that the pages show. This host keeps a model's name and its maker in the first two
/// of the record's own texts, and the pixel pitch in hundredths of a millimetre.
namespace cabinets
{

/// The record of every model that is in stock, of which \a first is the first.
QList<StructCabinet> some(int count, int first = 0);

/// A model to choose, as controller boards show it.
ToolButtonEx *makeModel(const StructCabinet &record, QWidget *parent, int side = 40);
/// A cabinet that lies in a row and can be dragged out.
ToolButtonEx *makePlaced(const StructCabinet &record, QWidget *parent, int side = 69);

/// The main fields of a record, and what they hold.
QList<QPair<QString, QString>> mainFields(const StructCabinet &record);

} // namespace cabinets

// What the signals of the panels carry.
QString eventText(const StructCabinet &record);
QString eventText(DrawerItem *item);
QString eventText(RowLineItem *row);
QString eventText(OfflinePortItemFrame *port);

#endif // GALLERY_CABINETS_H
