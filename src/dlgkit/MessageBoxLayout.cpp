#include "dlgkit/MessageBoxLayout.h"

#include <algorithm>
#include <cctype>

namespace orv {
namespace {

constexpr MessageBoxButton kOk{1, "OK"};
constexpr MessageBoxButton kCancel{2, "Cancel"};
constexpr MessageBoxButton kAbort{3, "&Abort"};
constexpr MessageBoxButton kRetry{4, "&Retry"};
constexpr MessageBoxButton kIgnore{5, "&Ignore"};
constexpr MessageBoxButton kYes{6, "&Yes"};
constexpr MessageBoxButton kNo{7, "&No"};
constexpr MessageBoxButton kTryAgain{10, "&Try Again"};
constexpr MessageBoxButton kContinue{11, "&Continue"};

constexpr int kButtonStep = 55;
constexpr int kButtonWidth = 51;
constexpr int kButtonHeight = 14;
constexpr int kIconShift = 8;  // what an icon adds to the height and to the buttons' top
constexpr int kTextGap = 7;    // kept between the text and the buttons

}  // namespace

MessageBoxStyle MessageBoxStyleFromFlags(unsigned flags) {
  MessageBoxStyle style;
  switch (flags & 15u) {
    case 1:
      style.buttons = {kOk, kCancel};
      break;
    case 2:
      style.buttons = {kAbort, kRetry, kIgnore}, style.cancelId = -1;
      break;
    case 3:
      style.buttons = {kYes, kNo, kCancel};
      break;
    case 4:
      style.buttons = {kYes, kNo}, style.cancelId = -1;
      break;
    case 5:
      style.buttons = {kRetry, kCancel};
      break;
    case 6:
      style.buttons = {kCancel, kTryAgain, kContinue}, style.cancelId = -1;
      break;
    default:
      style.buttons = {kOk}, style.cancelId = 1;
      break;
  }
  switch (flags & 0x70u) {
    case 0x10:  // hand
      style.iconResource = 32513;
      break;
    case 0x20:  // question
      style.iconResource = 32514;
      break;
    case 0x30:  // exclamation
      style.iconResource = 32515;
      break;
    case 0x40:  // asterisk
      style.iconResource = 32516;
      break;
    default:
      break;
  }
  style.defaultIndex = static_cast<int>((flags >> 8) & 3u);
  return style;
}

MessageBoxTemplate MessageBoxTemplateFor(const MessageBoxStyle& style) {
  const bool icon = style.iconResource != 0;
  const int shift = icon ? kIconShift : 0;
  MessageBoxTemplate t{};
  t.cx = static_cast<int>(style.buttons.size()) * kButtonStep + 25;
  t.cy = 63 + shift;
  t.icon = {15, 14, 16, 16};
  t.text = {icon ? 37 : 7, 14, 217, 250};
  const int buttonsTop = 43 + shift;
  for (std::size_t i = 0; i < style.buttons.size(); ++i)
    t.buttons.push_back({24 + static_cast<int>(i) * kButtonStep, buttonsTop, kButtonWidth, kButtonHeight});
  t.textRoom = buttonsTop - kTextGap - t.text.y;
  return t;
}

MessageBoxFit FitMessageBoxText(int textTop, int textRoom, bool hasIcon, int iconTop, int iconHeight, int measuredWidth,
                                int measuredHeight, int widthBesideButtons) {
  MessageBoxFit fit{textTop, measuredHeight, 0, 0};
  if (hasIcon && measuredHeight < iconHeight / 2) {
    // A short text sits level with the middle of the icon.
    fit.textTop = iconTop + (iconHeight - measuredHeight) / 2;
  }
  fit.growHeight = std::max(0, fit.textTop + measuredHeight - (textTop + textRoom));
  fit.growWidth = std::max(0, measuredWidth - widthBesideButtons);
  return fit;
}

std::string_view MessageBoxShownText(std::string_view text) {
  if (!text.empty() && text.back() == '\n') {
    text.remove_suffix(1);
    if (!text.empty() && text.back() == '\r') text.remove_suffix(1);
  }
  return text;
}

std::string MessageBoxClipboardText(std::string_view caption, std::string_view text, const MessageBoxStyle& style) {
  const std::string rule = std::string(27, '-') + "\r\n";
  std::string out = rule;
  out.append(caption).append("\r\n").append(rule);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;  // CR LF stays one break
    if (text[i] == '\n' || text[i] == '\r') {
      out += "\r\n";
    } else {
      out += text[i];
    }
  }
  out.append("\r\n").append(rule);
  for (const MessageBoxButton& button : style.buttons) {
    for (const char* c = button.text; *c; ++c)
      if (*c != '&') out += *c;
    out += "   ";
  }
  out.append("\r\n").append(rule);
  return out;
}

int MessageBoxMnemonic(const MessageBoxStyle& style, char key) {
  const int wanted = std::toupper(static_cast<unsigned char>(key));
  for (const MessageBoxButton& button : style.buttons) {
    const char* amp = std::char_traits<char>::find(button.text, std::char_traits<char>::length(button.text), '&');
    if (amp && amp[1] && std::toupper(static_cast<unsigned char>(amp[1])) == wanted) return button.id;
  }
  return 0;
}

int MessageBoxCommandResult(const MessageBoxStyle& style, int id) {
  if (id != 2) return id;
  return style.cancelId == -1 ? 0 : style.cancelId;
}

}  // namespace orv
