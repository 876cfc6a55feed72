#pragma once
// The number format page's fields: the chosen format pair and the categories the host offers.
//
// The host's document, under the root "NumFmtPpgX" (found anywhere below the node given):
//   <Select Format="..." Precision="..."/>          the format pair in use
//   <FormatList><Category Id Begin End Name Control/>...</FormatList>
// Each child of FormatList is a category: Name is its row in the category list, Control its kind
// ("Fraction", "Decimal", "Date", "Time", any case; anything else is none), Id the format it
// stands for, Begin and End the stretch of its kind's type table it offers. Apply writes
// <Select Format Precision/> of the selected category.

#include <cstdint>
#include <string>
#include <vector>

#include "xml/Xml.h"

enum class NumFmtKind : std::int32_t { None = 0, Fraction = 1, Decimal = 2, Date = 3, Time = 4 };

// One row of a type table: the value stored and the text shown.
struct NumFmtType {
  std::int32_t value;
  const char* text;
};

// A category of the document's FormatList.
struct NumFmtCategory {
  std::int32_t id = -1;
  std::int32_t begin = 1;
  std::int32_t end = 1;
  std::int32_t precision = 2;
  NumFmtKind kind = NumFmtKind::None;
  std::string name;
};

// The type table of a kind, in its order; empty for none and decimals (which take places).
const std::vector<NumFmtType>& NumFmtTypeTable(NumFmtKind kind);

// The rows of the kind's table a category offers: End limited to the last row, Begin at least 0;
// none when Begin lies past End.
std::vector<NumFmtType> NumFmtOfferedTypes(const NumFmtCategory& category);

struct NumFmtProps {
  std::int32_t format = 0;     // Select's Format as read
  std::int32_t precision = 2;  // Select's Precision as read
  std::vector<NumFmtCategory> categories;
  int selected = -1;  // the category in use: the first whose Id is the Format read

  // Reads "NumFmtPpgX" found from `node` (itself or below it); without one nothing changes.
  // Categories and the selection start afresh when it is found.
  void Read(XmlNode node);
  // <Select Format Precision/> of the selected category under `root`; false (nothing written)
  // without a selected category.
  bool Write(XmlNode root) const;
};
