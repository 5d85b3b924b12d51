#ifndef SAMETREE_H
#define SAMETREE_H

#include <QString>

class QWidget;

/// Where two shown windows differ in what they consist of and in what they look like, for a reader;
/// empty when they are the same. Compared are, widget by widget, the Qt class that it is or derives
/// from, its place, whether it is visible, and its sheet; then the pictures. The classes of their
/// own that both sides derive from Qt's are not compared.
QString treeDifference(QWidget *first, QWidget *second);

#endif // SAMETREE_H
