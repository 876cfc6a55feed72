#pragma once
// TVector<T>: the program's list that reads and writes itself as XML: an element "TVector" with
// one child per item, named "Item_0", "Item_1" ... (the prefix and the index). The reader doesn't
// look at the children's names: it takes each element child in order.

#include <cstddef>
#include <cstdlib>
#include <string>
#include <vector>

#include "linestudies/XYCoord.h"
#include "xml/StrFormat.h"
#include "xml/Xml.h"

template <class T>
class TVector {
 public:
  static constexpr const char* kPrefix = "Item_";
  // More items than this is a broken document, not a study: the rest are passed over.
  static constexpr std::size_t kMaxItems = 4096;

  // Clears the list and reads the "TVector" child of `holder`, one item from each element child
  // by readItem(child, item) into a default item. A null holder leaves the list as it was.
  template <class ReadItem>
  void Read(XmlNode holder, ReadItem&& readItem) {
    if (!holder) return;
    items.clear();
    XmlNode list = XmlFindChild(holder, "TVector");
    for (XmlNode child = XmlFirstChild(list); child && items.size() < kMaxItems; child = XmlNextSibling(child)) {
      if (!LsIsElement(child)) continue;
      T item{};
      readItem(child, item);
      items.push_back(std::move(item));
    }
  }

  // Appends "TVector" to `holder`; writeItem(list, name, item) appends item n as "Item_<n>".
  template <class WriteItem>
  void Write(XmlNode holder, WriteItem&& writeItem) const {
    XmlNode list = XmlAddChild(holder, "TVector");
    for (std::size_t i = 0; i < items.size(); ++i) {
      writeItem(list, orv::StrFormat("%s%d", kPrefix, static_cast<int>(i)).c_str(), items[i]);
    }
  }

  std::vector<T> items;
};

// The items of a list of doubles. Each child's text is one number, read by atof as the XML
// layer reads a double (a text that is no finite number reads as 0); written by the layer's
// writer ("%f").
inline void ReadDoubleItem(XmlNode item, double& value) {
  std::string text;
  XmlGetNodeText(item, text);
  const double parsed = std::atof(text.c_str());
  value = parsed - parsed == 0.0 ? parsed : 0.0;
}

inline void WriteDoubleItem(XmlNode list, const char* name, double value) { XmlAddDoubleChild(list, name, value); }
