#ifndef TSXTIMES_EXPORT_H_
#define TSXTIMES_EXPORT_H_

// Marks what libtsxtimes.so offers; everything else in it is hidden.
#define TSXTIMES_EXPORT __attribute__((visibility("default")))

#endif  // TSXTIMES_EXPORT_H_
