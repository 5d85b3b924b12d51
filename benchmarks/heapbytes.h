#ifndef HEAPBYTES_H
#define HEAPBYTES_H

/// The bytes of the heap that are in use, by all libraries of the process. A program that is linked
/// with heapbytes.cpp counts them at each allocation.
long long heapBytes();

#endif // HEAPBYTES_H
