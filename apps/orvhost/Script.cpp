#include "Script.h"

#include "xml/StrFormat.h"

#include <charconv>
#include <cstddef>

namespace orv::host_app {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

std::string_view Trim(std::string_view s) {
  while (!s.empty() && IsBlank(s.front())) s.remove_prefix(1);
  while (!s.empty() && IsBlank(s.back())) s.remove_suffix(1);
  return s;
}

// Splits into commands at new lines and at semicolons outside quotes; comment lines go.
std::vector<std::string> SplitCommands(std::string_view text) {
  std::vector<std::string> commands;
  std::string current;
  bool quoted = false;
  bool escaped = false;
  bool comment = false;
  bool commandStart = true;  // nothing but blanks yet in this command
  auto flush = [&] {
    const std::string_view trimmed = Trim(current);
    if (!trimmed.empty()) commands.emplace_back(trimmed);
    current.clear();
  };
  for (const char c : text) {
    if (comment) {
      if (c == '\n') comment = false;
      continue;
    }
    if (commandStart && IsBlank(c)) continue;
    if (commandStart && c == '#') {
      comment = true;
      continue;
    }
    commandStart = false;
    if (quoted) {
      current += c;
      if (escaped)
        escaped = false;
      else if (c == '\\')
        escaped = true;
      else if (c == '"')
        quoted = false;
      else if (c == '\n') {
        quoted = false;
        flush();
        commandStart = true;
      }  // a quote never spans lines
      continue;
    }
    if (c == '"') {
      quoted = true;
      current += c;
      continue;
    }
    if (c == ';' || c == '\n') {
      flush();
      commandStart = true;
      continue;
    }
    current += c;
  }
  flush();
  return commands;
}

// The next blank-separated word, removed from `rest`.
std::string_view NextWord(std::string_view& rest) {
  rest = Trim(rest);
  std::size_t end = 0;
  while (end < rest.size() && !IsBlank(rest[end])) ++end;
  const std::string_view word = rest.substr(0, end);
  rest.remove_prefix(end);
  rest = Trim(rest);
  return word;
}

bool ParseInt(std::string_view word, int low, int high, int& out) {
  if (word.empty()) return false;
  int value = 0;
  const auto [end, ec] = std::from_chars(word.data(), word.data() + word.size(), value);
  if (ec != std::errc() || end != word.data() + word.size()) return false;
  if (value < low || value > high) return false;
  out = value;
  return true;
}

// The value of text/screenshot: quoted with escapes, or the rest as it stands.
bool ParseValue(std::string_view rest, std::string& out, std::string& why) {
  out.clear();
  if (rest.empty() || rest.front() != '"') {
    out.assign(rest);
    return true;
  }
  std::size_t i = 1;
  for (; i < rest.size(); ++i) {
    const char c = rest[i];
    if (c == '\\' && i + 1 < rest.size() && (rest[i + 1] == '"' || rest[i + 1] == '\\')) {
      out += rest[++i];
    } else if (c == '"') {
      break;
    } else {
      out += c;
    }
  }
  if (i >= rest.size()) {
    why = "the quoted value has no closing quote";
    return false;
  }
  if (!Trim(rest.substr(i + 1)).empty()) {
    why = "text after the closing quote";
    return false;
  }
  return true;
}

struct Verb {
  const char* name;
  ScriptOp op;
};
constexpr Verb kVerbs[] = {
    {"text", ScriptOp::Text},     {"click", ScriptOp::Click},   {"select", ScriptOp::Select},
    {"tab", ScriptOp::Tab},       {"apply", ScriptOp::Apply},   {"ok", ScriptOp::Ok},
    {"cancel", ScriptOp::Cancel}, {"next", ScriptOp::Next},     {"back", ScriptOp::Back},
    {"finish", ScriptOp::Finish}, {"wait", ScriptOp::Wait},     {"screenshot", ScriptOp::Screenshot},
    {"spin", ScriptOp::Spin},     {"toggle", ScriptOp::Toggle}, {"expect", ScriptOp::Expect},
    {"color", ScriptOp::Color},
};

// Parses one command; an empty result means good.
std::string ParseCommand(const std::string& command, ScriptStep& step) {
  std::string_view rest = command;
  const std::string_view verb = NextWord(rest);
  const Verb* found = nullptr;
  for (const Verb& v : kVerbs) {
    if (verb == v.name) found = &v;
  }
  if (found == nullptr) {
    return StrFormat(
        "unknown command \"%.*s\" (known: text click select toggle expect tab spin color apply ok "
        "cancel next back finish wait screenshot)",
        static_cast<int>(verb.size()), verb.data());
  }
  step.op = found->op;
  const char* name = found->name;
  switch (step.op) {
    case ScriptOp::Text:
    case ScriptOp::Expect: {
      if (!ParseInt(NextWord(rest), 1, 65535, step.id)) return StrFormat("%s needs a control id from 1 to 65535", name);
      std::string why;
      if (!ParseValue(rest, step.text, why)) return why;
      return {};
    }
    case ScriptOp::Click:
      if (!ParseInt(NextWord(rest), 1, 65535, step.id)) return StrFormat("%s needs a control id from 1 to 65535", name);
      break;
    case ScriptOp::Select:
    case ScriptOp::Toggle:
      if (!ParseInt(NextWord(rest), 1, 65535, step.id)) return StrFormat("%s needs a control id from 1 to 65535", name);
      if (!ParseInt(NextWord(rest), 0, 1000000, step.index))
        return StrFormat("%s needs an item index of 0 or more", name);
      break;
    case ScriptOp::Spin:
      if (!ParseInt(NextWord(rest), 1, 65535, step.id)) return StrFormat("%s needs a control id from 1 to 65535", name);
      if (!ParseInt(NextWord(rest), -1000000, 1000000, step.index) || step.index == 0) {
        return StrFormat("%s needs a number of steps other than 0", name);
      }
      break;
    case ScriptOp::Color:
      if (!ParseInt(NextWord(rest), 1, 65535, step.id)) return StrFormat("%s needs a control id from 1 to 65535", name);
      if (!ParseInt(NextWord(rest), 0, kMaxScriptColorCell, step.index))
        return StrFormat("%s needs a grid cell from 0 to %d", name, kMaxScriptColorCell);
      break;
    case ScriptOp::Tab:
      if (!ParseInt(NextWord(rest), 0, 1000, step.index)) return StrFormat("%s needs a tab index of 0 or more", name);
      break;
    case ScriptOp::Wait:
      if (!ParseInt(NextWord(rest), 0, kMaxWaitMilliseconds, step.milliseconds)) {
        return StrFormat("%s needs milliseconds from 0 to %d", name, kMaxWaitMilliseconds);
      }
      break;
    case ScriptOp::Screenshot: {
      std::string why;
      if (!ParseValue(rest, step.text, why)) return why;
      if (step.text.empty()) return "screenshot needs a file name";
      return {};
    }
    default:
      break;
  }
  if (!rest.empty()) {
    return StrFormat("unexpected \"%.*s\" after %s", static_cast<int>(rest.size()), rest.data(), name);
  }
  return {};
}

}  // namespace

ParsedScript ParseScript(std::string_view text) {
  ParsedScript result;
  const std::vector<std::string> commands = SplitCommands(text);
  for (std::size_t i = 0; i < commands.size(); ++i) {
    ScriptStep step;
    step.source = commands[i];
    const std::string why = ParseCommand(commands[i], step);
    if (!why.empty()) {
      result.steps.clear();
      result.error =
          StrFormat("script command %d (\"%s\"): %s", static_cast<int>(i + 1), commands[i].c_str(), why.c_str());
      return result;
    }
    result.steps.push_back(std::move(step));
  }
  if (result.steps.empty()) result.error = "the script has no commands";
  return result;
}

}  // namespace orv::host_app
