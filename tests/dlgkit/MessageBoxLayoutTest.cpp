// The program's message box without windows: what flags ask for, the template, how the box
// grows around its text, what Ctrl+C copies, mnemonics and the answers to commands.
#include "dlgkit/MessageBoxLayout.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using orv::MessageBoxStyleFromFlags;

std::vector<int> Ids(const orv::MessageBoxStyle& style) {
  std::vector<int> ids;
  for (const auto& b : style.buttons) ids.push_back(b.id);
  return ids;
}

TEST(MessageBoxStyle, ButtonsAndCancelByTheLowBits) {
  struct Row {
    unsigned flags;
    std::vector<int> ids;
    int cancel;
  };
  const Row rows[] = {
      {0, {1}, 1},          {1, {1, 2}, 2}, {2, {3, 4, 5}, -1}, {3, {6, 7, 2}, 2},  {4, {6, 7}, -1}, {5, {4, 2}, 2},
      {6, {2, 10, 11}, -1}, {7, {1}, 1},    {15, {1}, 1},       {0x34, {6, 7}, -1},  // icon bits don't matter
  };
  for (const Row& row : rows) {
    const auto style = MessageBoxStyleFromFlags(row.flags);
    EXPECT_EQ(Ids(style), row.ids) << "flags " << row.flags;
    EXPECT_EQ(style.cancelId, row.cancel) << "flags " << row.flags;
  }
  EXPECT_STREQ(MessageBoxStyleFromFlags(6).buttons[1].text, "&Try Again");
}

TEST(MessageBoxTemplate, TheTextsRoomEndsAboveTheButtonsAndAnIconGivesMore) {
  const auto plain = orv::MessageBoxTemplateFor(MessageBoxStyleFromFlags(4));
  const auto withIcon = orv::MessageBoxTemplateFor(MessageBoxStyleFromFlags(0x33));
  ASSERT_EQ(plain.buttons.size(), 2u);
  ASSERT_EQ(withIcon.buttons.size(), 3u);
  EXPECT_LE(plain.text.y + plain.textRoom, plain.buttons[0].y);
  EXPECT_LE(withIcon.text.y + withIcon.textRoom, withIcon.buttons[0].y);
  EXPECT_GT(withIcon.textRoom, plain.textRoom);
}

TEST(MessageBoxFit, GrowsOnlyForWhatTheTextNeeds) {
  // Pixels: text at top 21 with 36 of room, icon 21..45, 100 wide beside the buttons.
  auto fit = orv::FitMessageBoxText(21, 36, false, 0, 0, 0, 0, 100);  // empty text
  EXPECT_EQ(fit.growWidth, 0);
  EXPECT_EQ(fit.growHeight, 0);
  EXPECT_EQ(fit.textTop, 21);

  fit = orv::FitMessageBoxText(21, 36, true, 21, 24, 60, 10, 100);  // one short line beside an icon
  EXPECT_EQ(fit.textTop, 28) << "centred on the icon";
  EXPECT_EQ(fit.growHeight, 0);

  fit = orv::FitMessageBoxText(21, 36, true, 21, 24, 60, 13, 100);  // not below half the icon
  EXPECT_EQ(fit.textTop, 21);

  fit = orv::FitMessageBoxText(21, 36, false, 0, 0, 90, 130, 100);  // ten lines
  EXPECT_EQ(fit.growHeight, 130 - 36);
  EXPECT_EQ(fit.growWidth, 0);
  EXPECT_EQ(fit.textHeight, 130);

  fit = orv::FitMessageBoxText(21, 36, false, 0, 0, 320, 26, 100);  // wider than the buttons
  EXPECT_EQ(fit.growWidth, 220);
  EXPECT_EQ(fit.growHeight, 0);
}

TEST(MessageBoxText, OneTrailingNewlineIsDropped) {
  EXPECT_EQ(orv::MessageBoxShownText("Done.\n"), "Done.");
  EXPECT_EQ(orv::MessageBoxShownText("Done.\r\n"), "Done.");
  EXPECT_EQ(orv::MessageBoxShownText("Done.\n\n"), "Done.\n");
  EXPECT_EQ(orv::MessageBoxShownText(""), "");
  EXPECT_EQ(orv::MessageBoxShownText("\n"), "");
}

TEST(MessageBoxText, CtrlCCopiesAsThePlatformsBox) {
  const std::string rule = "---------------------------\r\n";
  EXPECT_EQ(orv::MessageBoxClipboardText("Trendline", "First line\nsecond\r\nthird", MessageBoxStyleFromFlags(4)),
            rule + "Trendline\r\n" + rule + "First line\r\nsecond\r\nthird\r\n" + rule + "Yes   No   \r\n" + rule);
  EXPECT_EQ(orv::MessageBoxClipboardText("", "", MessageBoxStyleFromFlags(0)),
            rule + "\r\n" + rule + "\r\n" + rule + "OK   \r\n" + rule);
}

TEST(MessageBoxKeys, MnemonicsAndCommands) {
  const auto yesNo = MessageBoxStyleFromFlags(4);
  EXPECT_EQ(orv::MessageBoxMnemonic(yesNo, 'y'), 6);
  EXPECT_EQ(orv::MessageBoxMnemonic(yesNo, 'N'), 7);
  EXPECT_EQ(orv::MessageBoxMnemonic(yesNo, 'c'), 0);
  EXPECT_EQ(orv::MessageBoxMnemonic(MessageBoxStyleFromFlags(1), 'o'), 0) << "OK has no mnemonic";
  EXPECT_EQ(orv::MessageBoxMnemonic(MessageBoxStyleFromFlags(6), 't'), 10);

  EXPECT_EQ(orv::MessageBoxCommandResult(yesNo, 2), 0) << "Esc is ignored without a way to cancel";
  EXPECT_EQ(orv::MessageBoxCommandResult(yesNo, 7), 7);
  EXPECT_EQ(orv::MessageBoxCommandResult(MessageBoxStyleFromFlags(0), 2), 1) << "Esc on OK alone gives OK";
  EXPECT_EQ(orv::MessageBoxCommandResult(MessageBoxStyleFromFlags(3), 2), 2);
}

}  // namespace
