#pragma once

// The writer of SVG pictures and of HTML tables for strangers' texts: every text and every attribute that
// goes through it is escaped, so that no text of a page can become markup. What XML cannot hold (control
// characters, bytes that are no UTF-8) becomes the replacement character. Numbers are written with at most
// two decimals, the same on every platform. Names of elements and attributes are the program's own.

#include <concepts>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace amortix2 {

/// Appends a number rounded to two decimals, halves away from zero ("12", "0.5", "-3.25", never "-0").
/// Numbers beyond 1e12 are cut to it.
void AppendNumber(std::string& out, double number);

/// Appends a text in which `&`, `<`, `>` and both quotes are entities.
void AppendEscaped(std::string& out, std::string_view text);

/// An attribute of an element: its name, and a text or a number.
class Attribute {
 public:
  Attribute(std::string_view name, std::string_view text) : name_(name), text_(text) {}
  Attribute(std::string_view name, const char* text) : name_(name), text_(text) {}
  Attribute(std::string_view name, const std::string& text) : name_(name), text_(text) {}
  template <class Number>
  requires std::integral<Number> || std::floating_point<Number> Attribute(std::string_view name,
                                                                          Number number)
      : name_(name), number_(static_cast<double>(number)), isNumber_(true) {}

  /// The attribute, or none.
  static Attribute If(bool condition, const Attribute& attribute) {
    return condition ? attribute : Attribute("", "");
  }

  /// Appends nothing for an attribute without a name.
  void AppendTo(std::string& out) const;

 private:
  std::string_view name_;
  std::string_view text_;
  double number_ = 0;
  bool isNumber_ = false;
};

class EscapedMarkup {
 public:
  using Attributes = std::initializer_list<Attribute>;

  /// Opens an element, closes the innermost open one, or writes one without content ("<path d="..."/>", for
  /// SVG alone).
  void Open(std::string_view element, Attributes attributes = {});
  void Close();
  void Leaf(std::string_view element, Attributes attributes);

  /// A text in the open element.
  void Text(std::string_view text) { AppendEscaped(out_, text); }

  /// An element that holds nothing but a text.
  void TextElement(std::string_view element, Attributes attributes, std::string_view text);

  /// Another writer's text, as it is: its elements must be closed.
  void Append(const EscapedMarkup& part) { out_ += part.out_; }

  /// Markup that a writer of the program's own made and escaped (a chart's picture, a table), as it is. Its
  /// elements must be closed; never a text that came from outside.
  void AppendMarkup(std::string_view markup) { out_ += markup; }

  /// What has been written so far.
  const std::string& Written() const { return out_; }

  /// A new line between elements; readers of the source are glad of it.
  void Break() { out_ += '\n'; }

  /// The whole text, with every element closed. Leaves the writer empty.
  std::string Finish();

 private:
  void Start(std::string_view element, Attributes attributes);

  std::string out_;
  std::vector<std::string_view> open_;
};

}  // namespace amortix2
