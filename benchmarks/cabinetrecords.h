#ifndef CABINETRECORDS_H
#define CABINETRECORDS_H

#include "structcabinet.h"

#include <QList>

/// A record of the one or the other of two models, with a count of its own.
inline StructCabinet cabinetRecord(int number)
{
    StructCabinet record{};
    record.cabinetSize = number % 2 == 0 ? QSize(128, 96) : QSize(64, 128);
    record.cabinetCount = 1 + number % 9;
    record.cabinetweight = 5;
    record.cabinetpower = 0.5;
    record.cabinetVoltage = 5;
    record.cabinetuisize = 50;
    record.cabinetuiHsize = 50;
    record.cabinetPointspace = 1;
    return record;
}

inline QList<StructCabinet> cabinetRecords(int count)
{
    QList<StructCabinet> records;
    for (int i = 0; i < count; ++i)
        records.append(cabinetRecord(i));
    return records;
}

#endif // CABINETRECORDS_H
