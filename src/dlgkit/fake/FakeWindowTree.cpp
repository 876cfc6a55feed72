#include "dlgkit/fake/FakeWindowTree.h"

#include <algorithm>
#include <cstring>
#include <cctype>

#include "dlgkit/ThemeColors.h"
#include "dlgkit/ThemedControls.h"

namespace orv {

struct FakeWindowTree::Node {
  std::string className;
  std::int32_t style = 0;
  int id = 0;
  std::string text;
  Node* parent = nullptr;
  std::vector<Node*> children;
  WindowRect client;
  COrvThemedControl* subclassedBy = nullptr;
  MessageHandler handler;
  std::vector<std::string> items;
  int horizontalExtent = -1;
  bool alive = true;
};

FakeWindowTree::FakeWindowTree() = default;

FakeWindowTree::~FakeWindowTree() {
  // Windows die before the objects that subclassed them only if the test says so; a control
  // still attached is told here, so its destructor doesn't touch a freed tree.
  for (auto& node : nodes_)
    if (node->alive && node->subclassedBy) node->subclassedBy->DetachWindow();
}

FakeWindowTree::Node* FakeWindowTree::Find(WindowHandle window) const {
  for (auto& node : nodes_)
    if (node.get() == window && node->alive) return node.get();
  ++misuse_;
  return nullptr;
}

bool FakeWindowTree::IsWindow(WindowHandle window) const {
  return std::any_of(nodes_.begin(), nodes_.end(), [&](auto& n) { return n.get() == window && n->alive; });
}

WindowHandle FakeWindowTree::CreateDialogWindow(WindowRect client) {
  auto node = std::make_unique<Node>();
  node->className = "#32770";
  node->client = client;
  nodes_.push_back(std::move(node));
  return nodes_.back().get();
}

WindowHandle FakeWindowTree::AddChild(WindowHandle parent, const std::string& className, std::int32_t style, int id,
                                      const std::string& text) {
  Node* parentNode = Find(parent);
  if (!parentNode) return nullptr;
  auto node = std::make_unique<Node>();
  node->className = className;
  node->style = style;
  node->id = id;
  node->text = text;
  node->parent = parentNode;
  node->client = {0, 0, 80, 20};
  parentNode->children.push_back(node.get());
  nodes_.push_back(std::move(node));
  return nodes_.back().get();
}

void FakeWindowTree::SetMessageHandler(WindowHandle window, MessageHandler handler) {
  if (Node* node = Find(window)) node->handler = std::move(handler);
}

void FakeWindowTree::SetListBoxItems(WindowHandle listBox, std::vector<std::string> items) {
  if (Node* node = Find(listBox)) node->items = std::move(items);
}

void FakeWindowTree::DestroyWindow(WindowHandle window) {
  Node* node = Find(window);
  if (!node) return;
  for (Node* child : node->children)
    if (child->alive) DestroyWindow(child);
  if (node->subclassedBy) node->subclassedBy->DetachWindow();
  node->subclassedBy = nullptr;
  node->alive = false;
}

std::vector<FakeWindowTree::SentMessage> FakeWindowTree::SentTo(WindowHandle window) const {
  std::vector<SentMessage> out;
  for (auto& m : sent_)
    if (m.window == window) out.push_back(m);
  return out;
}

std::vector<WindowHandle> FakeWindowTree::ReceiversOf(unsigned message) const {
  std::vector<WindowHandle> out;
  for (auto& m : sent_)
    if (m.message == message) out.push_back(m.window);
  return out;
}

COrvThemedControl* FakeWindowTree::SubclassedBy(WindowHandle window) const {
  Node* node = Find(window);
  return node ? node->subclassedBy : nullptr;
}

std::int32_t FakeWindowTree::StyleOf(WindowHandle window) const {
  Node* node = Find(window);
  return node ? node->style : 0;
}

int FakeWindowTree::HorizontalExtentOf(WindowHandle window) const {
  Node* node = Find(window);
  return node ? node->horizontalExtent : -1;
}

std::optional<std::uint32_t> FakeWindowTree::BrushColor(BrushHandle brush) const {
  auto it = liveBrushes_.find(brush);
  if (it == liveBrushes_.end()) return std::nullopt;
  return it->second;
}

WindowHandle FakeWindowTree::GetWindow(WindowHandle window, unsigned command) {
  Node* node = Find(window);
  if (!node) return nullptr;
  auto firstAlive = [](const std::vector<Node*>& list, size_t from) -> Node* {
    for (size_t i = from; i < list.size(); ++i)
      if (list[i]->alive) return list[i];
    return nullptr;
  };
  if (command == kGwChild) return firstAlive(node->children, 0);
  if (command == kGwHwndNext && node->parent) {
    auto& siblings = node->parent->children;
    auto it = std::find(siblings.begin(), siblings.end(), node);
    return firstAlive(siblings, static_cast<size_t>(it - siblings.begin()) + 1);
  }
  return nullptr;
}

WindowHandle FakeWindowTree::GetDlgItem(WindowHandle dialog, int id) {
  Node* node = Find(dialog);
  if (!node) return nullptr;
  for (Node* child : node->children)
    if (child->alive && child->id == id) return child;
  return nullptr;
}

static bool EqualsNoCase(const std::string& a, const char* b) {
  size_t n = std::strlen(b);
  if (a.size() != n) return false;
  for (size_t i = 0; i < n; ++i)
    if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) return false;
  return true;
}

static int CopyOut(const std::string& text, char* buffer, int size) {
  if (!buffer || size <= 0) return 0;
  int n = std::min<int>(static_cast<int>(text.size()), size - 1);
  std::memcpy(buffer, text.data(), static_cast<size_t>(n));
  buffer[n] = '\0';
  return n;
}

int FakeWindowTree::GetClassNameA(WindowHandle window, char* buffer, int size) {
  Node* node = Find(window);
  return node ? CopyOut(node->className, buffer, size) : CopyOut({}, buffer, size);
}

int FakeWindowTree::GetWindowTextA(WindowHandle window, char* buffer, int size) {
  Node* node = Find(window);
  return node ? CopyOut(node->text, buffer, size) : CopyOut({}, buffer, size);
}

std::int32_t FakeWindowTree::GetWindowLongA(WindowHandle window, int index) {
  Node* node = Find(window);
  if (!node || index != kGwlStyle) return 0;
  return node->style;
}

std::int32_t FakeWindowTree::SetWindowLongA(WindowHandle window, int index, std::int32_t value) {
  Node* node = Find(window);
  if (!node || index != kGwlStyle) return 0;
  std::int32_t before = node->style;
  node->style = value;
  styleChanges_.push_back({window, before, value});
  return before;
}

int FakeWindowTree::GetDlgCtrlID(WindowHandle window) {
  Node* node = Find(window);
  return node ? node->id : 0;
}

std::intptr_t FakeWindowTree::SendMessageA(WindowHandle window, unsigned message, std::uintptr_t wParam,
                                           std::intptr_t lParam) {
  Node* node = Find(window);
  if (!node) return 0;
  std::uint32_t pointed = 0;
  if (message == WM_ORV_THEME_QUERY && lParam) pointed = *reinterpret_cast<const std::uint32_t*>(lParam);
  sent_.push_back({window, message, wParam, lParam, pointed});
  // As on the platform: the subclassing object sees the message first.
  if (node->subclassedBy) {
    std::intptr_t result = 0;
    if (node->subclassedBy->OnMessage(message, wParam, lParam, result)) return result;
  }
  if (node->handler)
    if (auto answer = node->handler(message, wParam, lParam)) return *answer;
  if (message == kLvmGetHeader) {
    for (Node* child : node->children)
      if (child->alive && EqualsNoCase(child->className, "SysHeader32")) return reinterpret_cast<std::intptr_t>(child);
  }
  return 0;
}

bool FakeWindowTree::InvalidateRect(WindowHandle window, const WindowRect*, bool erase) {
  if (!Find(window)) return false;
  invalidations_.push_back({window, erase});
  return true;
}

bool FakeWindowTree::GetClientRect(WindowHandle window, WindowRect& rect) {
  Node* node = Find(window);
  if (!node) return false;
  rect = node->client;
  return true;
}

BrushHandle FakeWindowTree::CreateSolidBrush(std::uint32_t color) {
  auto brush = reinterpret_cast<BrushHandle>(nextBrush_);
  nextBrush_ += 0x10;
  liveBrushes_[brush] = color;
  return brush;
}

bool FakeWindowTree::DeleteObject(BrushHandle brush) {
  if (liveBrushes_.erase(brush) == 0) {
    ++misuse_;
    return false;
  }
  return true;
}

int FakeWindowTree::FillRect(DeviceContext dc, const WindowRect& rect, BrushHandle brush) {
  if (!IsBrushAlive(brush)) ++misuse_;
  dcs_[dc].fills.emplace_back(rect, brush);
  return 1;
}

int FakeWindowTree::SetBkMode(DeviceContext dc, int mode) { return std::exchange(dcs_[dc].bkMode, mode); }

std::uint32_t FakeWindowTree::SetTextColor(DeviceContext dc, std::uint32_t color) {
  return std::exchange(dcs_[dc].textColor, color);
}

std::uint32_t FakeWindowTree::SetBkColor(DeviceContext dc, std::uint32_t color) {
  return std::exchange(dcs_[dc].bkColor, color);
}

int FakeWindowTree::GetDisplayLogPixelsY() {
  ++displayQueries_;
  return dpi_;
}

bool FakeWindowTree::SubclassWindow(WindowHandle window, COrvThemedControl& control) {
  Node* node = Find(window);
  if (!node || node->subclassedBy) {
    if (node) ++misuse_;
    return false;
  }
  node->subclassedBy = &control;
  return true;
}

void FakeWindowTree::UnsubclassWindow(WindowHandle window, COrvThemedControl& control) {
  Node* node = Find(window);
  if (!node) return;
  if (node->subclassedBy != &control) {
    ++misuse_;
    return;
  }
  node->subclassedBy = nullptr;
}

int FakeWindowTree::MeasureListBoxHorizontalExtent(WindowHandle listBox) {
  Node* node = Find(listBox);
  if (!node) return 0;
  // Eight pixels per character stands in for the list's font.
  size_t widest = 0;
  for (auto& item : node->items) widest = std::max(widest, item.size());
  node->horizontalExtent = static_cast<int>(widest * 8);
  return node->horizontalExtent;
}

}  // namespace orv
