#ifndef STRUCTCABINET_H
#define STRUCTCABINET_H

#include <QSize>
#include <QString>

/**
 * One cabinet model of an LED wall and how many of it are on hand.
 *
 * The host fills the record, the panels pass it down to the cabinet buttons, and the buttons'
 * signals hand copies back with every field as it was given. The order and the types of the fields
 * are fixed: the record crosses between separately built modules, and a drag carries its bytes.
 *
 * The size and the texts have defaults; the numbers have none on purpose, so whoever makes a record
 * fills every one of them. The library shows size and count. It only carries all else, in whatever
 * unit the host has; the extra fields are the host's own.
 */
struct StructCabinet {
    QSize cabinetSize; ///< Width and height of the model in pixels of the wall.
    int cabinetCount; ///< How many are on hand. A negative number leaves a button its count.
    QString extraText1; ///< The host's own.
    QString extraText2; ///< The host's own.
    int extraValue1; ///< The host's own.
    int extraValue2; ///< The host's own.
    int extraValue3; ///< The host's own.
    int extraValue4; ///< The host's own.
    int extraValue5; ///< The host's own.
    QString extraText3; ///< The host's own.
    QString extraText4; ///< The host's own.
    int extraValue6; ///< The host's own.
    int extraValue7; ///< The host's own.
    int cabinetweight; ///< Weight of the model, in the host's unit.
    float cabinetpower; ///< Power of the model, in the host's unit.
    float cabinetVoltage; ///< Voltage of the model, in the host's unit.
    int cabinetuisize; ///< Width in pixels at which the host's layout view draws the model.
    int cabinetuiHsize; ///< Height in pixels at which the host's layout view draws the model.
    int cabinetPointspace; ///< Pixel pitch of the model, in the host's unit.
};

static_assert(sizeof(StructCabinet) == (sizeof(void *) == 8 ? 104 : 80),
              "hosts copy the record out of a drag byte by byte");

#endif // STRUCTCABINET_H
