#pragma once

#include <string>
#include <vector>

namespace varnok {

// What can stand over the columns of a table of studies, the best first: their names; without the words that all names begin or
// end with; the same with the number of the study in front. The last of them tell the studies apart however they are cut.
std::vector<std::vector<std::string>> Kopfvorschlaege(const std::vector<std::string>& Namen);

}  // namespace varnok
