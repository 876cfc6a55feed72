#include "chartpages/NumFmtProps.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace {

bool SameText(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
         });
}

struct KindRow {
  const char* control;
  NumFmtKind kind;
  std::int32_t precision;  // a category's precision until the Select says otherwise
};

constexpr KindRow kKinds[] = {
    {"Fraction", NumFmtKind::Fraction, 11},
    {"Decimal", NumFmtKind::Decimal, 2},
    {"Date", NumFmtKind::Date, 256},
    {"Time", NumFmtKind::Time, 16},
};

}  // namespace

const std::vector<NumFmtType>& NumFmtTypeTable(NumFmtKind kind) {
  static const std::vector<NumFmtType> kFraction = {{100, "Best Fit"}, {8, "(1/2)"},    {9, "(1/4)"},   {10, "(1/8)"},
                                                    {11, "(1/16)"},    {12, "(1/32)"},  {13, "(1/64)"}, {14, "(1/128)"},
                                                    {15, "(1/256)"},   {27, "(1/512)"}, {1, "(1/10)"},  {2, "(1/100)"},
                                                    {3, "(1/1000)"},   {4, "(1/10000)"}};
  static const std::vector<NumFmtType> kDate = {
      {16, "mm/dd/yy"}, {32, "mm-dd-yy"},  {48, "dd-Mon-yy"}, {64, "Mon-yy"},  {80, "dd/mm/yy"},
      {96, "dd-mm-yy"}, {112, "yy/mm/dd"}, {128, "yy-mm-dd"}, {192, "Mon-dd"}, {208, "DoW mm/dd/yy"}};
  static const std::vector<NumFmtType> kTime = {{512, " 2:30 PM"}, {256, "14:30"}, {768, " 2:30"}};
  static const std::vector<NumFmtType> kNone;
  switch (kind) {
    case NumFmtKind::Fraction:
      return kFraction;
    case NumFmtKind::Date:
      return kDate;
    case NumFmtKind::Time:
      return kTime;
    default:
      return kNone;
  }
}

std::vector<NumFmtType> NumFmtOfferedTypes(const NumFmtCategory& category) {
  const std::vector<NumFmtType>& table = NumFmtTypeTable(category.kind);
  const std::int64_t last = static_cast<std::int64_t>(table.size()) - 1;
  const std::int64_t end = std::min<std::int64_t>(category.end, last);
  const std::int64_t begin = std::max<std::int64_t>(category.begin, 0);
  if (begin > end) return {};
  return std::vector<NumFmtType>(table.begin() + begin, table.begin() + end + 1);
}

void NumFmtProps::Read(XmlNode node) {
  XmlNode root = XmlFindNode(node, "NumFmtPpgX", true);
  if (!root) return;
  format = 0;
  precision = 2;
  XmlNode select = XmlFindChild(root, "Select");
  XmlGetAttrValue(select, "Format", format);
  XmlGetAttrValue(select, "Precision", precision);

  categories.clear();
  selected = -1;
  for (XmlNode child = XmlFirstChild(XmlFindChild(root, "FormatList")); child; child = XmlNextSibling(child)) {
    if (XmlIsTextNode(child)) continue;  // the layout's white space and stray text are no categories
    NumFmtCategory category;
    XmlGetAttrValue(child, "Id", category.id);
    XmlGetAttrValue(child, "Begin", category.begin);
    XmlGetAttrValue(child, "End", category.end);
    XmlGetAttr(child, "Name", category.name);
    std::string control;
    XmlGetAttr(child, "Control", control);
    for (const KindRow& row : kKinds) {
      if (SameText(control, row.control)) {
        category.kind = row.kind;
        category.precision = row.precision;
      }
    }
    if (selected < 0 && category.id == format) {
      selected = static_cast<int>(categories.size());
      if (category.kind == NumFmtKind::Fraction || category.kind == NumFmtKind::Decimal) category.precision = precision;
      if (category.kind == NumFmtKind::Date || category.kind == NumFmtKind::Time) category.precision = format;
    }
    categories.push_back(std::move(category));
  }
}

bool NumFmtProps::Write(XmlNode root) const {
  if (selected < 0 || selected >= static_cast<int>(categories.size())) return false;
  XmlNode select = XmlAddChild(root, "Select");
  XmlSetAttrValue(select, "Format", categories[selected].id);
  XmlSetAttrValue(select, "Precision", categories[selected].precision);
  return true;
}
