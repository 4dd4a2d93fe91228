#ifndef TSXPORT_EXPORT_H_
#define TSXPORT_EXPORT_H_

// Marks what libtsxport.so offers; everything else in it is hidden.
#define TSX_EXPORT __attribute__((visibility("default")))

#endif  // TSXPORT_EXPORT_H_
