#ifndef BACKUPPARAM_H
#define BACKUPPARAM_H

#include <QString>

/**
 * One backup record, a row of a TableWidgetCustom. What the texts say is the host's choice: it
 * names the columns. A new record has empty texts and no flag.
 */
struct BackUpParam {
    QString firstText; ///< What stands in column 0.
    QString secondText; ///< What stands in column 1.
    QString thirdText; ///< What stands in column 2.
    QString fourthText; ///< What stands in column 3.
    bool flag = false; ///< The host's own. The table's copy loses it when it is shown.
};

Q_DECLARE_TYPEINFO(BackUpParam, Q_MOVABLE_TYPE);

#endif // BACKUPPARAM_H
