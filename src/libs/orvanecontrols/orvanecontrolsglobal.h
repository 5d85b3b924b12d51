#ifndef ORVANECONTROLSGLOBAL_H
#define ORVANECONTROLSGLOBAL_H

#include <QtCore/qglobal.h>

/// Marks what the library exports; the library's own build defines ORVANECONTROLS_LIBRARY.
#if defined(ORVANECONTROLS_LIBRARY)
#define ORVANECONTROLS_EXPORT Q_DECL_EXPORT
#else
#define ORVANECONTROLS_EXPORT Q_DECL_IMPORT
#endif

#endif // ORVANECONTROLSGLOBAL_H
