#include "amortix2/pages/frame.h"

namespace amortix2::pages {
namespace {

struct Place {
  std::string_view path;
  std::string_view title;
};
constexpr Place kPlaces[] = {
    {"/", "Calculators"}, {"/invest", "Survey"}, {"/chart", "Charts"}, {"/method", "Method"}};

void AppendHead(EscapedMarkup& out, std::string_view title) {
  out.Open("head");
  out.Leaf("meta", {{"charset", "utf-8"}});
  out.Leaf("meta", {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}});
  out.Leaf("meta", {{"name", "color-scheme"}, {"content", "light dark"}});
  out.TextElement("title", {}, std::string(title) + " – Amortix2");
  out.Leaf("link", {{"rel", "stylesheet"}, {"href", "/style.css"}});
  out.Leaf("link", {{"rel", "icon"}, {"href", "/icon.svg"}, {"type", "image/svg+xml"}});
  out.Close();
}

void AppendHeader(EscapedMarkup& out, std::string_view path) {
  out.TextElement("a", {{"class", "skip"}, {"href", "#main"}}, "Skip to the page");
  out.Open("header", {{"class", "top"}});
  out.Open("div", {{"class", "wrap"}});
  out.TextElement("a", {{"class", "brand"}, {"href", "/"}}, "Amortix2");
  out.Open("nav", {{"aria-label", "Site"}});
  out.Open("ul");
  for (const Place& place : kPlaces) {
    out.Open("li");
    out.TextElement("a", {{"href", place.path}, Attribute::If(place.path == path, {"aria-current", "page"})},
                    place.title);
    out.Close();
  }
  for (int i = 0; i < 4; ++i) out.Close();
}

void AppendFooter(EscapedMarkup& out) {
  out.Open("footer");
  out.Open("div", {{"class", "wrap"}});
  out.Open("p");
  out.Text("Every figure is an estimate and no advice. ");
  AppendLink(out, "/method", "How the figures are made");
  out.Text(".");
  for (int i = 0; i < 3; ++i) out.Close();
}

}  // namespace

void AppendLink(EscapedMarkup& out, std::string_view address, std::string_view text) {
  out.TextElement("a", {{"href", address}}, text);
}

void AppendFigure(EscapedMarkup& out, std::string_view caption, std::string_view picture,
                  std::string_view table) {
  out.TextElement("figcaption", {}, caption);
  out.Open("div", {{"aria-hidden", "true"}});
  out.AppendMarkup(picture);
  out.Close();
  out.Open("details");
  out.TextElement("summary", {}, "The chart's numbers");
  out.Open("div", {{"class", "scroll"}, {"tabindex", 0}, {"role", "region"}, {"aria-label", caption}});
  out.AppendMarkup(table);
  out.Close();
  out.Close();
}

void AppendProblems(EscapedMarkup& out, const std::vector<Problem>& problems) {
  out.Open("section", {{"class", "card problems"}, {"id", "answer"}, {"role", "alert"}, {"tabindex", "-1"}});
  out.TextElement("h2", {}, "Please look at this again");
  out.Open("ul");
  for (const Problem& problem : problems) {
    out.Open("li");
    if (!problem.field.empty()) {
      AppendLink(out, "#" + problem.field, problem.title);
      out.Text(": ");
    }
    out.Text(problem.sentence);
    out.Close();
  }
  out.Close();
  out.Close();
}

Page Framed(std::string_view title, std::string_view path, EscapedMarkup& main, int status) {
  EscapedMarkup out;
  out.Open("html", {{"lang", "en-US"}});
  AppendHead(out, title);
  out.Open("body");
  AppendHeader(out, path);
  out.Open("main", {{"id", "main"}, {"class", "wrap"}});
  out.Append(main);
  out.Close();
  AppendFooter(out);
  return {.status = status, .bytes = "<!DOCTYPE html>\n" + out.Finish() + "\n"};
}

}  // namespace amortix2::pages
