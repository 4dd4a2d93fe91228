#ifndef TSXPORT_TESTS_RESUME_NUMBERLIST_H_
#define TSXPORT_TESTS_RESUME_NUMBERLIST_H_

#include <pugixml.hpp>
#include <vector>

namespace test {

// The numbers in the text of an element, parted by single blanks; none when it is empty or not
// there. Throws std::runtime_error on anything else.
std::vector<double> NumbersIn(const pugi::xml_node& element);

}  // namespace test

#endif  // TSXPORT_TESTS_RESUME_NUMBERLIST_H_
