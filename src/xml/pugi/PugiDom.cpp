// The DOM seam over pugixml, for the native build.
//
// pugixml nodes live inside their document, so every handle shares ownership of its tree. A load
// never frees the former tree: it lives on while handles point into it (detached from the
// document, as MSXML leaves them).
// Destroying a pugixml document frees its pages without walking the tree, so a tree of any depth
// dies without recursion; remove_child would recurse, which is why nothing here removes nodes.

#include <pugixml.hpp>

#include <sstream>
#include <string_view>
#include <unordered_set>

#include "xml/Dom.h"
#include "xml/XmlError.h"

namespace orv::dom {

// A document handle follows the current tree across loads; node handles hold the tree they
// point into, so a tree replaced by a load lives exactly as long as handles into it.
struct DocumentState {
  std::shared_ptr<pugi::xml_document> current = std::make_shared<pugi::xml_document>();
};

struct NodeImpl {
  enum class Kind { Document, Node, Attribute, AttributeText };
  Kind kind = Kind::Node;
  std::shared_ptr<DocumentState> owner;      // Kind::Document
  std::shared_ptr<pugi::xml_document> tree;  // the others
  pugi::xml_node node;                       // Kind::Node
  pugi::xml_attribute attribute;             // Kind::Attribute and its text child, Kind::AttributeText

  const std::shared_ptr<pugi::xml_document>& Tree() const { return kind == Kind::Document ? owner->current : tree; }
  pugi::xml_node Top() const { return kind == Kind::Document ? pugi::xml_node(*owner->current) : node; }
};

namespace {

Node MakeNode(const std::shared_ptr<pugi::xml_document>& tree, pugi::xml_node node) {
  if (!node) return nullptr;
  auto impl = std::make_shared<NodeImpl>();
  impl->tree = tree;
  impl->node = node;
  return impl;
}

Node MakeAttribute(const std::shared_ptr<pugi::xml_document>& tree, pugi::xml_attribute attribute,
                   NodeImpl::Kind kind) {
  auto impl = std::make_shared<NodeImpl>();
  impl->tree = tree;
  impl->kind = kind;
  impl->attribute = attribute;
  return impl;
}

// The hidden holder of removed nodes; its name is no XML name, so no load or writer makes one.
constexpr char kRemovedHolder[] = "#removed";

bool IsHolder(pugi::xml_node node) {
  return node.type() == pugi::node_element && node.parent().type() == pugi::node_document &&
         std::string_view(node.name()) == kRemovedHolder;
}

// `node`, or the first sibling after it, that isn't the holder.
pugi::xml_node Visible(pugi::xml_node node) { return IsHolder(node) ? node.next_sibling() : node; }

[[noreturn]] void Fail(const char* context, Status status = kStatusFail) { throw XmlComError(status, context); }

// True when `node` is a node that may hold children; attributes cannot here.
pugi::xml_node ContainerOf(const NodeImpl& impl, const char* context) {
  if (impl.kind == NodeImpl::Kind::Attribute || impl.kind == NodeImpl::Kind::AttributeText) Fail(context);
  return impl.Top();
}

// MSXML allows one element at the top of a document, and no text there.
void CheckTopLevelInsert(pugi::xml_node parent, pugi::xml_node_type type, const char* context) {
  if (parent.type() != pugi::node_document) return;
  if (type == pugi::node_pcdata || type == pugi::node_cdata) Fail(context);
  if (type == pugi::node_element) {
    for (pugi::xml_node child : parent.children())
      if (child.type() == pugi::node_element && !IsHolder(child)) Fail(context);
  }
}

bool IsNameStart(unsigned char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == ':' || c >= 0x80;
}
bool IsName(const char* name) {
  const auto* p = reinterpret_cast<const unsigned char*>(name);
  if (!IsNameStart(*p)) return false;
  for (++p; *p != 0; ++p)
    if (!IsNameStart(*p) && !(*p >= '0' && *p <= '9') && *p != '-' && *p != '.') return false;
  return true;
}

// What MSXML refuses and pugixml lets through: several root elements, text at the top,
// a declaration that is not first, malformed names, an attribute given twice.
bool IsStrictlyWellFormed(const pugi::xml_document& document) {
  int elements = 0;
  bool first = true;
  for (pugi::xml_node top : document.children()) {
    switch (top.type()) {
      case pugi::node_element:
        ++elements;
        break;
      case pugi::node_pcdata:
      case pugi::node_cdata:
        return false;
      case pugi::node_declaration:
        if (!first) return false;
        break;
      default:
        break;
    }
    first = false;
  }
  if (elements != 1) return false;

  std::unordered_set<std::string_view> seen;
  for (pugi::xml_node node = document.document_element(); node;) {
    if (node.type() == pugi::node_element) {
      if (!IsName(node.name())) return false;
      seen.clear();
      for (pugi::xml_attribute attribute : node.attributes()) {
        if (!IsName(attribute.name()) || !seen.insert(attribute.name()).second) return false;
      }
    }
    // Next in document order, without recursion.
    if (node.first_child()) {
      node = node.first_child();
      continue;
    }
    while (node && !node.next_sibling()) node = node.parent();
    if (node) node = node.next_sibling();
  }
  return true;
}

// A shallow copy as cloneNode(false) makes it: the node with its attributes, no children.
pugi::xml_node AppendShallowCopy(pugi::xml_node destination, pugi::xml_node source) {
  pugi::xml_node copy = destination.append_child(source.type());
  if (!copy) return copy;
  copy.set_name(source.name());
  copy.set_value(source.value());
  for (pugi::xml_attribute attribute : source.attributes()) copy.append_copy(attribute);
  return copy;
}

// Collects printed markup. pugixml writes a carriage return in text as it is, and a load turns it
// into a line feed; written as a reference, as MSXML writes it, it survives the round trip. Only
// text can carry one: a load normalises line ends elsewhere, attribute values are escaped, and
// the layer makes no comments or instructions.
struct StringWriter : pugi::xml_writer {
  std::string text;
  void write(const void* data, std::size_t size) override {
    const std::string_view chunk(static_cast<const char*>(data), size);
    for (std::size_t start = 0;;) {
      const std::size_t cr = chunk.find('\r', start);
      text.append(chunk.substr(start, cr - start));
      if (cr == std::string_view::npos) break;
      text += "&#13;";
      start = cr + 1;
    }
  }
};

constexpr unsigned kPrintFlags = pugi::format_raw | pugi::format_no_declaration;

}  // namespace

std::string NodeName(const NodeImpl& impl) {
  switch (impl.kind) {
    case NodeImpl::Kind::Document:
      return "#document";
    case NodeImpl::Kind::Attribute:
      return impl.attribute.name();
    case NodeImpl::Kind::AttributeText:
      return "#text";
    case NodeImpl::Kind::Node:
      break;
  }
  switch (impl.node.type()) {
    case pugi::node_document:
      return "#document";
    case pugi::node_pcdata:
      return "#text";
    case pugi::node_cdata:
      return "#cdata-section";
    case pugi::node_comment:
      return "#comment";
    case pugi::node_declaration:
      return "xml";
    default:
      return impl.node.name();  // elements, processing instructions, doctype
  }
}

std::string NodeValue(const NodeImpl& impl) {
  if (impl.kind == NodeImpl::Kind::Attribute || impl.kind == NodeImpl::Kind::AttributeText)
    return impl.attribute.value();
  switch (impl.Top().type()) {
    case pugi::node_pcdata:
    case pugi::node_cdata:
    case pugi::node_comment:
    case pugi::node_pi:
      return impl.node.value();
    case pugi::node_declaration: {
      // MSXML gives the declaration's content as its value.
      std::string value;
      for (pugi::xml_attribute attribute : impl.node.attributes()) {
        if (!value.empty()) value += ' ';
        value += attribute.name();
        value += "=\"";
        value += attribute.value();
        value += '"';
      }
      return value;
    }
    default:
      return {};  // elements and documents have a null nodeValue
  }
}

bool IsDocument(const NodeImpl& impl) { return impl.kind == NodeImpl::Kind::Document; }

Node FirstChild(const NodeImpl& impl) {
  switch (impl.kind) {
    case NodeImpl::Kind::Attribute:
      return MakeAttribute(impl.Tree(), impl.attribute, NodeImpl::Kind::AttributeText);
    case NodeImpl::Kind::AttributeText:
      return nullptr;
    default:
      return MakeNode(impl.Tree(), Visible(impl.Top().first_child()));
  }
}

Node NextSibling(const NodeImpl& impl) {
  if (impl.kind != NodeImpl::Kind::Node) return nullptr;  // attributes are no children
  if (IsHolder(impl.node.parent())) return nullptr;       // removed: no siblings
  return MakeNode(impl.Tree(), Visible(impl.node.next_sibling()));
}

Node ParentNode(const NodeImpl& impl) {
  // As the DOM has it: an attribute has no parent, its text's parent is the attribute.
  switch (impl.kind) {
    case NodeImpl::Kind::Document:
    case NodeImpl::Kind::Attribute:
      return nullptr;
    case NodeImpl::Kind::AttributeText:
      return MakeAttribute(impl.Tree(), impl.attribute, NodeImpl::Kind::Attribute);
    case NodeImpl::Kind::Node:
      break;
  }
  pugi::xml_node parent = impl.node.parent();
  if (!parent || IsHolder(parent)) return nullptr;
  if (parent.type() != pugi::node_document) return MakeNode(impl.Tree(), parent);
  // The top of a tree: its document. A tree that a later load replaced stands on its own, as
  // MSXML leaves the nodes of a former content; its document handle is a new one over that tree.
  auto document = std::make_shared<NodeImpl>();
  document->kind = NodeImpl::Kind::Document;
  document->owner = std::make_shared<DocumentState>();
  document->owner->current = impl.Tree();
  return document;
}

Node NamedAttribute(const NodeImpl& impl, const char* name) {
  if (impl.kind != NodeImpl::Kind::Node || impl.node.type() != pugi::node_element) return nullptr;
  pugi::xml_attribute attribute = impl.node.attribute(name);
  if (!attribute) return nullptr;
  return MakeAttribute(impl.Tree(), attribute, NodeImpl::Kind::Attribute);
}

void SetAttribute(const NodeImpl& impl, const char* name, std::string_view value) {
  if (impl.kind != NodeImpl::Kind::Node || impl.node.type() != pugi::node_element)
    Fail("setAttribute: not an element", kStatusPointer);
  pugi::xml_node element = impl.node;  // a pugixml handle; the constness is the seam's
  pugi::xml_attribute attribute = element.attribute(name);
  if (!attribute) attribute = element.append_attribute(name);
  if (!attribute || !attribute.set_value(value.data(), value.size())) Fail("setAttribute", kStatusOutOfMemory);
}

Node AppendElement(const NodeImpl& parent, const char* name) {
  pugi::xml_node container = ContainerOf(parent, "appendChild");
  CheckTopLevelInsert(container, pugi::node_element, "appendChild: a document has one root element");
  pugi::xml_node element = container.append_child(pugi::node_element);
  if (!element) Fail("appendChild: the node cannot hold an element");
  if (!element.set_name(name)) Fail("createElement", kStatusOutOfMemory);
  return MakeNode(parent.Tree(), element);
}

Node AppendText(const NodeImpl& parent, std::string_view text) {
  pugi::xml_node container = ContainerOf(parent, "appendChild");
  CheckTopLevelInsert(container, pugi::node_pcdata, "appendChild: no text at the top of a document");
  pugi::xml_node node = container.append_child(pugi::node_pcdata);
  if (!node) Fail("appendChild: the node cannot hold text");
  if (!node.set_value(text.data(), text.size())) Fail("createTextNode", kStatusOutOfMemory);
  return MakeNode(parent.Tree(), node);
}

Node AppendClone(const NodeImpl& destination, const NodeImpl& source, bool deep) {
  pugi::xml_node container = ContainerOf(destination, "appendChild");
  if (source.kind != NodeImpl::Kind::Node) Fail("appendChild: a document or attribute cannot be a child");
  pugi::xml_node from = source.node;
  CheckTopLevelInsert(container, from.type(), "appendChild: a document has one root element");
  // pugixml copies iteratively, so a deep tree is copied without recursion.
  pugi::xml_node copy = deep ? container.append_copy(from) : AppendShallowCopy(container, from);
  if (!copy) Fail("appendChild: the node cannot hold this child");
  return MakeNode(destination.Tree(), copy);
}

void RemoveChild(const NodeImpl& parent, const NodeImpl& child) {
  pugi::xml_node container = ContainerOf(parent, "removeChild");
  if (child.kind != NodeImpl::Kind::Node || child.Tree() != parent.Tree() || child.node.parent() != container)
    Fail("removeChild: not a child of the node", kStatusInvalidArg);
  pugi::xml_document& tree = *parent.Tree();
  pugi::xml_node holder;
  for (pugi::xml_node top : tree.children())
    if (IsHolder(top)) holder = top;
  if (!holder) {
    holder = tree.append_child(pugi::node_element);
    if (!holder || !holder.set_name(kRemovedHolder)) Fail("removeChild", kStatusOutOfMemory);
  }
  if (!holder.append_move(child.node)) Fail("removeChild", kStatusOutOfMemory);
}

std::string NodeXml(const NodeImpl& impl) {
  if (impl.kind == NodeImpl::Kind::AttributeText) return impl.attribute.value();
  if (impl.kind == NodeImpl::Kind::Attribute) {
    // Printed as MSXML prints an attribute node: name="value", escaped as in an element.
    pugi::xml_document scratch;
    pugi::xml_node holder = scratch.append_child("a");
    holder.append_copy(impl.attribute);
    StringWriter writer;
    holder.print(writer, "", kPrintFlags);
    const std::size_t begin = writer.text.find(' ') + 1;
    const std::size_t end = writer.text.rfind('/');
    return writer.text.substr(begin, end - begin);
  }
  StringWriter writer;
  if (impl.kind == NodeImpl::Kind::Document) {
    // MSXML ends every top-level node of a document with CR LF.
    for (pugi::xml_node top : impl.owner->current->children()) {
      if (IsHolder(top)) continue;
      top.print(writer, "", kPrintFlags);
      writer.text += "\r\n";
    }
  } else {
    impl.node.print(writer, "", kPrintFlags);
  }
  return std::move(writer.text);
}

Node CreateDocument() {
  auto impl = std::make_shared<NodeImpl>();
  impl->owner = std::make_shared<DocumentState>();
  impl->kind = NodeImpl::Kind::Document;
  return impl;
}

bool LoadXml(const NodeImpl& document, std::string_view text) {
  if (document.kind != NodeImpl::Kind::Document) Fail("loadXML: not a document", kStatusNoInterface);
  // A fresh tree: handles into the former content keep it alive, detached from the document.
  auto tree = std::make_shared<pugi::xml_document>();
  document.owner->current = tree;
  // Comments, processing instructions and the declaration stay nodes, as in MSXML; text that is
  // only white space is dropped, as MSXML drops it by default. As a fragment, text outside the
  // root element is kept rather than silently skipped, so that the strict check can refuse it.
  constexpr unsigned kParse =
      pugi::parse_default | pugi::parse_comments | pugi::parse_pi | pugi::parse_declaration | pugi::parse_fragment;
  pugi::xml_parse_result result = tree->load_buffer(text.data(), text.size(), kParse, pugi::encoding_utf8);
  if (result && IsStrictlyWellFormed(*tree)) return true;
  tree->reset();  // a failed load leaves the document empty; nothing points into the new tree yet
  return false;
}

void ClearDocument(const NodeImpl& document) {
  if (document.kind == NodeImpl::Kind::Document) document.owner->current = std::make_shared<pugi::xml_document>();
}

}  // namespace orv::dom
