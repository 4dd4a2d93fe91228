#ifndef TSXPORT_OBJSTREAM_NAMES_H_
#define TSXPORT_OBJSTREAM_NAMES_H_

#include <limits>
#include <string_view>

// The names of the format, in the order in which a stream has them, and its two special values.
namespace tsx::objstream {

inline constexpr char kDeclaration[] = "?xml";
inline constexpr char kDocType[] = "!DOCTYPE";
inline constexpr char kRoot[] = "MCXMLRoot";
inline constexpr char kCopyright[] = "copyright";
inline constexpr char kObject[] = "Obj";
inline constexpr char kObjectEnd[] = "/Obj";
inline constexpr char kName[] = "name";
inline constexpr char kValue[] = "value";

// A value element's name, and how the writer's lines with it begin.
struct ValueTag {
  std::string_view name;
  std::string_view start;
};
inline constexpr ValueTag kInt = {"Int", "<Int value="};
inline constexpr ValueTag kLong = {"Long", "<Long value="};
inline constexpr ValueTag kDouble = {"Double", "<Double value="};
inline constexpr ValueTag kString = {"String", "<String value="};

inline constexpr char kMissingText[] = "Missing";
inline constexpr double kMissingValue = std::numeric_limits<double>::lowest();

}  // namespace tsx::objstream

#endif  // TSXPORT_OBJSTREAM_NAMES_H_
