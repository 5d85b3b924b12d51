#ifndef ORVANE_TESTS_CABINETRECORD_H
#define ORVANE_TESTS_CABINETRECORD_H

#include <structcabinet.h>

#include <QStringList>

/// A record that differs in every field from the one of every other \a seed, with a count of 1 or
/// more.
inline StructCabinet cabinetRecord(int seed)
{
    StructCabinet record;
    record.cabinetSize = QSize(100 + seed, 200 + seed);
    record.cabinetCount = 300 + seed;
    record.extraText1 = QString("text 1 of %1").arg(seed);
    record.extraText2 = QString("text 2 of %1").arg(seed);
    record.extraValue1 = 1000 + seed;
    record.extraValue2 = -2000 - seed;
    record.extraValue3 = 3000 + seed;
    record.extraValue4 = -4000 - seed;
    record.extraValue5 = 5000 + seed;
    record.extraText3 = QString("text 3 of %1").arg(seed);
    record.extraText4 = QString("text 4 of %1").arg(seed);
    record.extraValue6 = 6000 + seed;
    record.extraValue7 = -7000 - seed;
    record.cabinetweight = 400 + seed;
    record.cabinetpower = 0.5F + float(seed);
    record.cabinetVoltage = 0.25F + float(seed);
    record.cabinetuisize = 500 + seed;
    record.cabinetuiHsize = 600 + seed;
    record.cabinetPointspace = 700 + seed;
    return record;
}

/// All fields of a record as texts, in their order: equal exactly for equal records.
inline QStringList cabinetFields(const StructCabinet &record)
{
    QStringList fields{QString::number(record.cabinetSize.width()),
                       QString::number(record.cabinetSize.height()),
                       QString::number(record.cabinetCount), record.extraText1, record.extraText2};
    for (const int value : {record.extraValue1, record.extraValue2, record.extraValue3,
                            record.extraValue4, record.extraValue5})
        fields += QString::number(value);
    fields += {record.extraText3, record.extraText4};
    for (const int value : {record.extraValue6, record.extraValue7, record.cabinetweight})
        fields += QString::number(value);
    for (const float value : {record.cabinetpower, record.cabinetVoltage})
        fields += QString::number(double(value), 'g', 9);
    for (const int value : {record.cabinetuisize, record.cabinetuiHsize, record.cabinetPointspace})
        fields += QString::number(value);
    return fields;
}

#endif // ORVANE_TESTS_CABINETRECORD_H
