#ifndef CHECKSTATEEX_H
#define CHECKSTATEEX_H

/// How much of a drawer item's content is checked, as its check-all box shows it.
enum checkStateEx : int {
    AllChecked = 0, ///< All of it: the box is checked.
    NoneChecked = 1, ///< None of it: the box is unchecked.
    PartChecked = 2, ///< Some of it: the box is checked, with a picture of its own.
};

#endif // CHECKSTATEEX_H
