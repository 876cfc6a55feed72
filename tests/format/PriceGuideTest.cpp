// The host guide's table of the price formats: every row's text is what FormatPrice gives for its
// format, precision and value, so the guide can't drift from the formatter. Native only: the test
// reads the guide from the source tree.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "format/FormatPrice.h"

namespace {

std::string Trim(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> Cells(const std::string& row) {
  std::vector<std::string> cells;
  std::stringstream stream(row.substr(1));
  std::string cell;
  while (std::getline(stream, cell, '|')) cells.push_back(Trim(cell));
  return cells;
}

TEST(PriceGuide, TableRowsAreWhatFormatPriceWrites) {
  std::ifstream guide(ORV_HOST_GUIDE);
  ASSERT_TRUE(guide) << ORV_HOST_GUIDE;
  std::string line;
  bool inSection = false;
  int rows = 0;
  while (std::getline(guide, line)) {
    if (line.rfind("#### The price formats", 0) == 0) {
      inSection = true;
      continue;
    }
    if (!inSection) continue;
    if (line.rfind("#", 0) == 0) break;  // the next heading
    if (line.rfind("| ", 0) != 0) continue;
    const std::vector<std::string> cells = Cells(line);
    if (cells.size() < 5 || cells[0] == "Format" || cells[0].rfind("---", 0) == 0) continue;
    const std::string& quoted = cells[3];  // `"text"`
    ASSERT_GE(quoted.size(), 4u) << line;
    ASSERT_EQ(quoted.substr(0, 2), "`\"") << line;
    ASSERT_EQ(quoted.substr(quoted.size() - 2), "\"`") << line;
    const std::string expected = quoted.substr(2, quoted.size() - 4);
    std::string text;
    orv::FormatPrice(std::strtod(cells[2].c_str(), nullptr), std::atoi(cells[0].c_str()), std::atoi(cells[1].c_str()),
                     text);
    EXPECT_EQ(text, expected) << line;
    ++rows;
  }
  EXPECT_TRUE(inSection);
  EXPECT_GE(rows, 30);
}

}  // namespace
