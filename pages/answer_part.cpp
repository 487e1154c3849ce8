#include "amortix2/pages/answer_part.h"

#include <algorithm>
#include <string>
#include <vector>

#include "amortix2/component/answer.h"
#include "amortix2/pages/answer_charts.h"
#include "amortix2/pages/downloads.h"
#include "amortix2/pages/figure_text.h"
#include "amortix2/pages/figures.h"
#include "amortix2/pages/frame.h"
#include "amortix2/pages/horizons.h"
#include "amortix2/pages/schedule.h"
#include "amortix2/pages/two_answers.h"

namespace amortix2::pages {
namespace {

/// A table among the results.
struct ResultArray {
  const ParameterInfo& parameter;
  const Array& array;
};

std::vector<ResultArray> Arrays(const Calculation& calculation) {
  std::vector<ResultArray> arrays;
  for (const ParameterInfo& parameter : calculation.Member().parameters) {
    if (parameter.role != Role::Result || !parameter.table) continue;
    const Variant* value = calculation.Out().Find({.parameter = parameter.name});
    if (value && value->Type() == VariantType::Array) arrays.push_back({parameter, value->GetArray()});
  }
  return arrays;
}

/// The inputs, for paper, where there is no form.
void AppendAsked(EscapedMarkup& out, const Calculation& calculation) {
  out.Open("dl", {{"class", "asked"}});
  for (const ParameterInfo& parameter : calculation.Member().parameters) {
    const Variant& given = calculation.In().At(parameter.name);
    if (!parameter.IsInput() || !IsGiven(given)) continue;
    std::string text;
    for (const Variant& element : ElementsOf(given)) {
      const ChoiceInfo* choice =
          parameter.choices ? FindChoice(*parameter.choices, CellText(element, Unit::None)) : nullptr;
      if (!text.empty()) text += "; ";
      text += choice ? std::string(choice->title) : FigureText(calculation.In(), element, parameter.unit);
    }
    out.Open("div");
    out.TextElement("dt", {}, parameter.title);
    out.TextElement("dd", {}, text);
    out.Close();
  }
  out.Close();
}

void AppendFigures(EscapedMarkup& out, const Calculation& calculation) {
  std::vector<NamedFigure> figures = FiguresOf(calculation);
  std::erase_if(figures, [](const NamedFigure& figure) { return figure.isEcho || figure.isCell; });
  if (figures.empty()) return;
  out.Open("dl", {{"class", "figures"}});
  for (const NamedFigure& figure : figures) {
    constexpr std::size_t kLong = 40;
    const bool isLong = figure.value.Type() == VariantType::String && figure.value.GetString().size() > kLong;
    out.Open("div", {Attribute::If(figure.isFound || isLong, {"class", isLong ? "words" : "found"})});
    out.TextElement("dt", {}, figure.title);
    out.TextElement("dd", {}, FigureText(calculation.In(), figure.value, figure.unit));
    out.Close();
  }
  out.Close();
}

void AppendNotes(EscapedMarkup& out, const std::vector<Note>& notes) {
  if (notes.empty()) return;
  out.Open("div", {{"class", "notes"}});
  out.TextElement("h3", {}, "Good to know");
  out.Open("ul");
  for (const Note& note : notes) {
    out.Open("li");
    if (note.parameter) out.TextElement("strong", {}, std::string(note.parameter->title) + ": ");
    out.Text(note.given.empty() ? note.sentence : note.given + " " + note.sentence + ".");
    out.Close();
  }
  out.Close();
  out.Close();
}

void AppendGrids(EscapedMarkup& out, const Calculation& calculation, const std::vector<ResultArray>& arrays,
                 Marks marks) {
  for (const auto& [parameter, array] : arrays) {
    if (parameter.table->isSchedule || array.Rank() == 1) continue;
    AppendGrid(out, calculation.In(), parameter, array, marks);
  }
}

/// One schedule is shown at once; of several each opens on demand.
void AppendSchedules(EscapedMarkup& out, const Calculation& calculation,
                     const std::vector<ResultArray>& arrays) {
  std::size_t count = 0;
  for (const auto& [parameter, array] : arrays) count += parameter.table->isSchedule ? 1 : 0;
  for (const auto& [parameter, array] : arrays) {
    if (!parameter.table->isSchedule) continue;
    out.Open("details", {{"class", "card schedule"}, Attribute::If(count == 1, {"open", ""})});
    out.Open("summary");
    out.TextElement("h2", {}, parameter.title);
    out.Close();
    AppendSchedule(out, calculation.In(), parameter, array);
    out.Close();
  }
}

void AppendChartCard(EscapedMarkup& out, const Calculation& calculation, const Query& query) {
  EscapedMarkup charts;
  AppendCharts(charts, calculation, query);
  if (charts.Written().empty()) return;
  out.Open("section", {{"class", "card"}, {"aria-labelledby", "charts"}});
  out.TextElement("h2", {{"id", "charts"}}, "Charts");
  out.Open("div", {{"class", "charts"}});
  out.Append(charts);
  out.Close();
  out.Close();
}

void AppendTakeAlong(EscapedMarkup& out, const Calculation& calculation, const Query& query) {
  const std::string path = "/" + std::string(calculation.Member().address) + "?";
  Query own = query;
  own.Remove("with");
  out.Open("ul", {{"class", "along"}});
  const auto link = [&](const std::string& address, std::string_view text) {
    out.Open("li");
    AppendLink(out, address, text);
    out.Close();
  };
  link(path + own.Text() + "#answer", "Link to this answer");
  Query with = own;
  with.Set("with", own.Text());
  link(path + with.Text(),
       query.Find("with") ? "Compare the next change with this" : "Compare with a change");
  if (query.Find("with")) link(path + own.Text(), "Stop comparing");
  out.Close();
  AppendDownloads(out, calculation, own);
}

}  // namespace

std::string AnswerText(const Calculation& calculation) {
  return AnswerSentence(calculation.In(), calculation.Out(), [&](const Variant& value, Unit unit) {
    return FigureText(calculation.In(), value, unit);
  });
}

void AppendAnswer(EscapedMarkup& out, const Calculation& calculation, const Query& query,
                  const Calculation* first, const Clock& clock) {
  const std::vector<ResultArray> arrays = Arrays(calculation);
  out.Open("section",
           {{"class", "card answer"}, {"id", "answer"}, {"tabindex", "-1"}, {"aria-live", "polite"}});
  out.TextElement("h2", {}, "Answer");
  AppendAsked(out, calculation);
  const std::string sentence = AnswerText(calculation);
  if (!sentence.empty()) out.TextElement("p", {{"class", "sentence"}}, sentence);
  AppendFigures(out, calculation);
  const std::vector<Note> notes = calculation.Execution().Notes();
  AppendNotes(out, notes);
  if (first && first->Arguments() == calculation.Arguments()) {
    out.TextElement("p", {{"class", "notice"}},
                    "Now change an input and calculate: this answer stays beside the new one.");
  } else if (first) {
    AppendTwoAnswers(out, *first, calculation);
  }
  // A loan that is never paid off counts as the whole debt at once; nothing is better or worse than that.
  const bool isNeverPaid = std::ranges::find(notes, "payment-below-interest", &Note::code) != notes.end();
  AppendGrids(out, calculation, arrays, isNeverPaid ? Marks::None : Marks::Better);
  if (!isNeverPaid) AppendHorizons(out, calculation, query, clock);
  AppendTakeAlong(out, calculation, query);
  out.Close();
  AppendChartCard(out, calculation, query);
  AppendSchedules(out, calculation, arrays);
}

}  // namespace amortix2::pages
