#pragma once
// What the program's message box shows and how it answers, without windows: the buttons, icon and
// default a set of flags asks for, the box's template in dialog units, how the box grows around
// a measured text, the text Ctrl+C copies, mnemonics and the result of a button's command.
// win32/MessageBoxWin32.cpp puts it on the screen.

#include <string>
#include <string_view>
#include <vector>

namespace orv {

struct MessageBoxButton {
  int id;
  const char* text;  // with its "&" mnemonic where it has one
};

struct MessageBoxStyle {
  std::vector<MessageBoxButton> buttons;  // in display order
  int cancelId = 2;                       // what Esc and the Close box give; -1: the box cannot be cancelled
  int iconResource = 0;                   // the platform's stock icon (32513 ...), 0 for none
  int defaultIndex = 0;                   // the button marked default; none when beyond the buttons
};

// The buttons (flags & 15), the icon (flags & 0x70) and the default button ((flags >> 8) & 3).
MessageBoxStyle MessageBoxStyleFromFlags(unsigned flags);

struct DialogUnitRect {
  int x, y, cx, cy;
  friend bool operator==(const DialogUnitRect&, const DialogUnitRect&) = default;
};

inline constexpr int kMessageBoxIconId = 100;
inline constexpr int kMessageBoxTextId = 101;
inline constexpr const char* kMessageBoxFontFace = "Segoe UI";
inline constexpr int kMessageBoxFontPoints = 9;

// The box's template in dialog units.
struct MessageBoxTemplate {
  int cx, cy;           // the dialog
  DialogUnitRect icon;  // shown only with an icon
  DialogUnitRect text;
  std::vector<DialogUnitRect> buttons;  // as the style lists them
  // The height the template leaves the text: the band from its top to the buttons' top, less
  // the gap kept between them. A text taller than this grows the box.
  int textRoom;
};
MessageBoxTemplate MessageBoxTemplateFor(const MessageBoxStyle& style);

// How a shown box fits its text, in pixels. Given: the text control's rectangle and the icon's
// (both as laid out), the measured text (word-broken at the text control's width), and the
// width beside the buttons that the text may use without widening the box.
struct MessageBoxFit {
  int textTop;     // the text's new top: moved down to centre on the icon when lower than half of it
  int textHeight;  // what the text control needs
  int growWidth;   // the box and buttons move by these; never negative
  int growHeight;
};
MessageBoxFit FitMessageBoxText(int textTop, int textRoom, bool hasIcon, int iconTop, int iconHeight, int measuredWidth,
                                int measuredHeight, int widthBesideButtons);

// The text as shown: one trailing newline dropped.
std::string_view MessageBoxShownText(std::string_view text);

// What Ctrl+C copies, as the platform's own box does: lines of 27 hyphens around the caption,
// the text (newlines as CR LF) and the buttons' texts (without "&", each followed by three blanks).
std::string MessageBoxClipboardText(std::string_view caption, std::string_view text, const MessageBoxStyle& style);

// The button whose mnemonic is `key` (either case), or 0.
int MessageBoxMnemonic(const MessageBoxStyle& style, char key);

// The box's answer to a button's command: id 2 (Esc, the Close box) gives the cancel id, or is
// ignored (0) when the box cannot be cancelled; any other id is the result.
int MessageBoxCommandResult(const MessageBoxStyle& style, int id);

}  // namespace orv
