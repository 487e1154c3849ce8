#include "amortix2/cli/document.h"

#include <string_view>

#include "amortix2/cli/text_table.h"

namespace amortix2::cli {
namespace {

/// A line that ends, whatever ended it before.
std::string Line(const std::string& text) { return text.ends_with('\n') ? text : text + "\n"; }

template <class Line>
void ForEachLine(std::string_view text, const Line& line) {
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    line(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
}

std::string Joined(const std::vector<std::string>& sentences) {
  std::string text;
  for (const std::string& sentence : sentences) text.append(text.empty() ? "" : " ").append(sentence);
  return text;
}

class TerminalWriter {
 public:
  void operator()(const Heading& heading) {
    Separate();
    out_.append(heading.level == 1 ? "" : "  ").append(heading.text).append("\n");
    afterHeading_ = true;
  }
  void operator()(const Paragraph& paragraph) {
    Separate();
    Wrap(paragraph.text, 2);
  }
  void operator()(const Code& code) {
    Separate();
    ForEachLine(code.text, [&](std::string_view line) { out_.append("    ").append(line).append("\n"); });
  }
  void operator()(const Items& items) {
    Separate();
    for (const Item& item : items.items) {
      out_.append("    ").append(item.term);
      out_.append(item.title.empty() ? "" : "  ").append(item.title).append("\n");
      for (const std::string& sentence : item.sentences) Wrap(sentence, 8);
      for (const std::string& point : item.points) Wrap(point, 10);
    }
  }
  void operator()(const Grid& grid) {
    Separate();
    AppendRows(out_, grid.rows.size(), [&](std::size_t row) {
      std::vector<TextCell> cells{{"  "}};
      for (const std::string& cell : grid.rows[row]) {
        cells.push_back({cell, cells.size() == 1 ? Align::Left : Align::Right});
      }
      return cells;
    });
  }
  std::string Take() { return std::move(out_); }

 private:
  void Separate() {
    if (!out_.empty() && !afterHeading_) out_ += '\n';
    afterHeading_ = false;
  }

  void Wrap(std::string_view text, std::size_t indent) {
    constexpr std::size_t kWidth = 100;
    std::string line(indent, ' ');
    while (!text.empty()) {
      const std::size_t end = text.find(' ');
      const std::string_view word = text.substr(0, end);
      if (line.size() > indent && line.size() + 1 + word.size() > kWidth) {
        out_ += line + "\n";
        line.assign(indent + 2, ' ');
      }
      if (line.back() != ' ') line += ' ';
      line += word;
      text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    out_ += line + "\n";
  }

  std::string out_;
  bool afterHeading_ = false;
};

/// A text of which some characters are replaced.
template <class Replace>
std::string Escaped(std::string_view text, const Replace& replace) {
  std::string out;
  for (const char c : text) {
    if (const std::string_view better = replace(c); !better.empty()) {
      out += better;
    } else {
      out += c;
    }
  }
  return out;
}

std::string Plain(std::string_view text) {
  return Escaped(text, [](char c) -> std::string_view {
    switch (c) {
      case '<':
        return "&lt;";
      case '*':
        return "\\*";
      case '_':
        return "\\_";
      case '|':
        return "\\|";
      default:
        return {};
    }
  });
}

class MarkdownWriter {
 public:
  void operator()(const Heading& heading) {
    Separate();
    out_.append(static_cast<std::size_t>(heading.level), '#')
        .append(" ")
        .append(Plain(heading.text))
        .append("\n");
  }
  void operator()(const Paragraph& paragraph) {
    Separate();
    out_ += Line(Plain(paragraph.text));
  }
  void operator()(const Code& code) {
    Separate();
    ForEachLine(code.text, [&](std::string_view line) { out_.append("    ").append(line).append("\n"); });
  }
  void operator()(const Items& items) {
    Separate();
    for (const Item& item : items.items) {
      out_.append("- `").append(item.term).append("`");
      if (!item.title.empty()) out_.append(" **").append(Plain(item.title)).append("**");
      const std::string text = Joined(item.sentences);
      out_ += Line(text.empty() ? text : ": " + Plain(text));
      for (const std::string& point : item.points) out_ += "  - " + Line(Plain(point));
    }
  }
  void operator()(const Grid& grid) {
    Separate();
    for (std::size_t row = 0; row < grid.rows.size(); ++row) {
      for (const std::string& cell : grid.rows[row]) out_ += "| " + Plain(cell) + " ";
      out_ += "|\n";
      if (row > 0) continue;
      for (std::size_t i = 0; i < grid.rows[0].size(); ++i) out_ += i == 0 ? "|---|" : "---:|";
      out_ += "\n";
    }
  }
  std::string Take() { return std::move(out_); }

 private:
  void Separate() {
    if (!out_.empty()) out_ += '\n';
  }

  std::string out_;
};

/// A line of roff text: no dot or apostrophe opens a request, and a hyphen can be copied.
std::string RoffLine(std::string_view text) {
  const bool isRequest = text.starts_with('.') || text.starts_with('\'');
  return (isRequest ? "\\&" : "") + Escaped(text, [](char c) -> std::string_view {
           return c == '\\' ? "\\e" : c == '-' ? "\\-" : std::string_view{};
         });
}

class RoffWriter {
 public:
  void operator()(const Heading& heading) {
    out_ += (heading.level == 1 ? ".SH \"" : ".SS \"") + RoffLine(heading.text) + "\"\n";
    afterHeading_ = true;
  }
  void operator()(const Paragraph& paragraph) {
    Separate();
    out_ += RoffLine(paragraph.text) + "\n";
  }
  void operator()(const Code& code) {
    Separate();
    out_ += ".nf\n.RS 4\n";
    ForEachLine(code.text, [&](std::string_view line) { out_ += RoffLine(line) + "\n"; });
    out_ += ".RE\n.fi\n";
  }
  void operator()(const Items& items) {
    afterHeading_ = false;
    for (const Item& item : items.items) {
      out_ += ".TP\n\\fB" + RoffLine(item.term) + "\\fR";
      out_ += item.title.empty() ? "\n" : "  " + RoffLine(item.title) + "\n";
      for (const std::string& sentence : item.sentences) out_ += RoffLine(sentence) + "\n";
      for (const std::string& point : item.points) out_ += ".br\n" + RoffLine(point) + "\n";
    }
  }
  void operator()(const Grid& grid) {
    std::string text;
    for (const auto& row : grid.rows) text += Joined(row) + "\n";
    (*this)(Code{text});
  }
  std::string Take() { return std::move(out_); }

 private:
  /// A heading is a separation enough.
  void Separate() {
    if (!afterHeading_) out_ += ".PP\n";
    afterHeading_ = false;
  }

  std::string out_;
  bool afterHeading_ = false;
};

template <class Writer>
std::string Written(const Document& document) {
  Writer writer;
  for (const auto& block : document) std::visit(writer, block);
  return writer.Take();
}

}  // namespace

std::string TerminalText(const Document& document) { return Written<TerminalWriter>(document); }

std::string MarkdownText(const Document& document) { return Written<MarkdownWriter>(document); }

std::string RoffText(const Document& document) { return Written<RoffWriter>(document); }

}  // namespace amortix2::cli
