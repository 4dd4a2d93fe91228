#ifndef TSXPORT_OBJSTREAM_NAMES_H_
#define TSXPORT_OBJSTREAM_NAMES_H_

#include <limits>

// The names of the format, in the order in which a stream has them, and its two special values.
namespace tsx::objstream {

inline constexpr char kDeclaration[] = "?xml";
inline constexpr char kDocType[] = "!DOCTYPE";
inline constexpr char kRoot[] = "MCXMLRoot";
inline constexpr char kCopyright[] = "copyright";
inline constexpr char kObject[] = "Obj";
inline constexpr char kObjectEnd[] = "/Obj";
inline constexpr char kName[] = "name";
inline constexpr char kInt[] = "Int";
inline constexpr char kLong[] = "Long";
inline constexpr char kDouble[] = "Double";
inline constexpr char kString[] = "String";
inline constexpr char kValue[] = "value";

inline constexpr char kMissingText[] = "Missing";
inline constexpr double kMissingValue = std::numeric_limits<double>::lowest();

}  // namespace tsx::objstream

#endif  // TSXPORT_OBJSTREAM_NAMES_H_
