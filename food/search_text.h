// Many short texts, kept one behind the other so that all of them are searched in one pass. The
// food tables keep what their products are found by in one.

#ifndef VELNOR_FOOD_SEARCH_TEXT_H_
#define VELNOR_FOOD_SEARCH_TEXT_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velnor {

class SearchText {
 public:
  void Clear();
  // Adds the text "first second", the two joined by a blank. Neither holds a NUL.
  void Add(std::string_view first, std::string_view second);

  // The places, counted from 0 in the order of adding, of the texts that hold `query` as it
  // stands; ascending. An empty query finds nothing.
  std::vector<std::size_t> Find(std::string_view query) const;

 private:
  std::string text_;               // a NUL behind each text
  std::vector<std::size_t> ends_;  // of each text, behind its NUL
};

}  // namespace velnor

#endif  // VELNOR_FOOD_SEARCH_TEXT_H_
