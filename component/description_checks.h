#pragma once

// What every description keeps to, checked when it is compiled: each check throws the sentence that the
// compiler then shows.

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

#include "amortix2/component/description.h"
#include "amortix2/component/figure.h"
#include "amortix2/component/names.h"

namespace amortix2::describing {

/// The value of a plain decimal number ("-12.5"). Throws when it is none.
constexpr double PlainNumber(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative) text.remove_prefix(1);
  double value = 0;
  double scale = 0;
  for (const char c : text) {
    if (c == '.' && scale == 0) {
      scale = 1;
    } else if (c >= '0' && c <= '9') {
      value = value * 10 + (c - '0');
      scale *= 10;
    } else {
      throw "the example of a number is no plain number";
    }
  }
  if (scale != 0) value /= scale;
  return negative ? -value : value;
}

constexpr bool IsIsoDate(std::string_view text) {
  constexpr std::string_view kPattern = "0000-00-00";
  return std::ranges::equal(
      text, kPattern, [](char c, char pattern) { return pattern == '-' ? c == '-' : c >= '0' && c <= '9'; });
}

constexpr void CheckChoices(const ChoicesInfo& info) {
  if (info.title.empty()) throw "a list of choices has no title";
  for (std::size_t i = 0; i < info.choices.size(); ++i) {
    const ChoiceInfo& choice = info.choices[i];
    if (choice.title.empty()) throw "a choice has no title";
    for (const ChoiceInfo& other : info.choices.first(i)) {
      if (Same(choice.text, other.text) || Same(choice.title, other.title)) throw "a choice stands twice";
    }
  }
}

constexpr void CheckExample(const ParameterInfo& parameter) {
  const std::string_view example = parameter.example;
  if (example.empty()) {
    if (parameter.omitted == Omitted::Required) throw "a required input has no example";
    return;
  }
  if (parameter.unit == Unit::Date && !IsIsoDate(example)) throw "the example of a date is no ISO date";
  if (parameter.choices && std::ranges::none_of(parameter.choices->choices, [&](const ChoiceInfo& choice) {
        return choice.text == example;
      })) {
    throw "an example is none of its choices";
  }
  if (!IsNumber(parameter.unit) || example.starts_with('[')) return;
  const double value = PlainNumber(example);
  if (parameter.range.IsGiven() && !parameter.range.Contains(value))
    throw "an example lies outside its range";
}

constexpr void CheckRange(const ParameterInfo& parameter) {
  const Range& range = parameter.range;
  if (range.least > range.most) throw "the least of a range lies above its most";
  if (range.step < 0) throw "a range's step is negative";
  if (!range.IsGiven()) return;
  if (!parameter.limit.IsGiven()) throw "a range has no limit";
  if (!parameter.limit.Contains(range.least) || !parameter.limit.Contains(range.most)) {
    throw "a range leaves its limit";
  }
}

constexpr bool IsIdentifier(std::string_view name) {
  const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  return !name.empty() && isLetter(name.front()) &&
         std::ranges::all_of(name, [&](char c) { return isLetter(c) || (c >= '0' && c <= '9'); });
}

constexpr void CheckParameter(const ParameterInfo& parameter) {
  if (!IsIdentifier(parameter.name)) throw "a parameter's name is no identifier";
  if (parameter.title.empty()) throw "a parameter has no title";
  const bool isSeries = parameter.unit == Unit::Table || parameter.unit == Unit::List;
  if (parameter.table && !isSeries) throw "a single value has a table's description";
  if (parameter.IsResult() && !parameter.byReference) throw "a result is not passed by reference";
  if (parameter.role == Role::Result && isSeries && !parameter.table) throw "a table is not described";
  if (!parameter.IsInput()) {
    if (!parameter.example.empty()) throw "what is not read has an example";
    return;
  }
  const bool isCode = parameter.unit == Unit::Code || parameter.unit == Unit::Flag;
  if (isCode && !parameter.choices) throw "a code names no choices";
  if (parameter.choices) CheckChoices(*parameter.choices);
  for (const QuestionInfo& question : parameter.questions) {
    if (question.text.empty()) throw "a question has no words";
    CheckChoices(
        {.title = question.text, .choices = question.answers, .otherwise = {}, .enumeration = nullptr});
  }
  CheckRange(parameter);
  CheckExample(parameter);
}

/// The parameters of one member, and what its description says about them.
class MemberChecks {
 public:
  constexpr explicit MemberChecks(std::span<const ParameterInfo> parameters) : parameters_(parameters) {}

  constexpr void Run(const MemberInfo& member) const {
    if (member.title.empty() || member.help.empty()) throw "a member has no title or no help";
    CheckAddress(member.address);
    bool optional = false;
    for (const ParameterInfo& parameter : parameters_) {
      CheckParameter(parameter);
      if (optional && !parameter.optional) throw "an optional parameter stands before one that is not";
      optional = parameter.optional;
      if (!parameter.echoes.empty()) {
        if (!parameter.IsResult()) throw "what is no result echoes an input";
        NeedInput(parameter.echoes);
      }
      if (parameter.table) CheckAxes(*parameter.table);
      if (parameter.IsInput() && parameter.omitted == Omitted::FindIt) NeedFind(member.finds, parameter.name);
    }
    for (const FindInfo& find : member.finds) CheckFind(find);
    for (const ChartInfo& chart : member.charts) CheckChart(chart);
    for (const ListInfo& list : member.lists) NeedInputs(list.inputs);
    if (member.comparison) CheckComparison(*member.comparison);
    if (!member.horizon.empty()) NeedInput(member.horizon);
  }

 private:
  static constexpr void CheckAddress(std::string_view address) {
    for (const char c : address) {
      const bool fits = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-';
      if (!fits) throw "an address has other characters than a-z, 0-9 and -";
    }
  }

  constexpr const ParameterInfo* Look(std::string_view name) const {
    const auto found = std::ranges::find(parameters_, name, &ParameterInfo::name);
    return found == parameters_.end() ? nullptr : &*found;
  }
  constexpr bool IsInput(std::string_view name) const {
    const ParameterInfo* parameter = Look(name);
    return parameter && parameter->IsInput();
  }
  constexpr const ParameterInfo& NeedInput(std::string_view name) const {
    if (!IsInput(name)) throw "a name is that of no input";
    return *Look(name);
  }
  constexpr void NeedInputs(std::span<const std::string_view> names) const {
    for (const std::string_view name : names) NeedInput(name);
  }
  constexpr const ParameterInfo& NeedResult(std::string_view name) const {
    const ParameterInfo* parameter = Look(name);
    if (!parameter || !parameter->IsResult()) throw "a figure is no result";
    return *parameter;
  }
  constexpr const TableInfo& NeedTable(std::string_view name) const {
    const ParameterInfo& parameter = NeedResult(name);
    if (!parameter.table) throw "a figure's indices belong to no table";
    return *parameter.table;
  }

  static constexpr void NeedFind(std::span<const FindInfo> finds, std::string_view input) {
    if (std::ranges::none_of(finds, [&](const FindInfo& find) { return find.input == input; })) {
      throw "an input that may be found is found by nothing";
    }
  }

  static constexpr bool IsIn(std::span<const HeadingInfo> headings, std::int32_t first, std::int32_t index) {
    return headings.empty() || (index >= first && index - first < static_cast<int>(headings.size()));
  }
  static constexpr void CheckColumn(const TableInfo& table, std::int32_t column) {
    if (column != -1 && !IsIn(table.columns, table.firstColumn, column)) throw "a table has no such column";
  }
  static constexpr void CheckRow(const TableInfo& table, std::int32_t row) {
    if (!IsIn(table.rows, table.firstRow, row)) throw "a table has no such row";
  }
  constexpr void CheckFigure(const Figure& figure) const {
    NeedResult(figure.parameter);
    if (figure.indices == 0) return;
    const TableInfo& table = NeedTable(figure.parameter);
    CheckRow(table, figure.row);
    if (figure.indices == 2) CheckColumn(table, figure.column);
  }

  constexpr void CheckFind(const FindInfo& find) const {
    if (!find.input.empty() && NeedInput(find.input).omitted != Omitted::FindIt) {
      throw "a quantity is found that its input does not ask for";
    }
    CheckFigure(ParseFigure(find.figure));
    NeedInputs(find.needs);
    NeedInputs(find.needsOne);
    if (find.sentences.empty()) throw "a quantity that can be found has no sentence";
    for (const SentenceInfo& sentence : find.sentences) {
      ForEachPart(
          sentence.text, [](std::string_view) {}, [&](const Figure& figure) { CheckFigure(figure); });
      if (sentence.when != SentenceInfo::When::Always) CheckFigure(ParseFigure(sentence.figure));
      if (!sentence.than.empty() && !IsInput(sentence.than)) CheckFigure(ParseFigure(sentence.than));
    }
    const SentenceInfo& last = *(find.sentences.end() - 1);
    if (last.when != SentenceInfo::When::Always) throw "the last sentence of an answer has a condition";
  }

  constexpr void CheckAxes(const TableInfo& table) const {
    for (const AxisInfo* axis : {table.rowAxis, table.columnAxis}) {
      if (!axis) continue;
      NeedInput(axis->centre);
      NeedInput(axis->step);
      NeedInput(axis->steps);
    }
  }
  constexpr void CheckChart(const ChartInfo& chart) const {
    if (chart.title.empty() || chart.series.empty()) throw "a chart has no title or no series";
    for (const SeriesInfo& series : chart.series) {
      if (series.title.empty()) throw "a chart's series has no title";
      const TableInfo& table = NeedTable(series.parameter);
      CheckColumn(table, series.column);
      if (series.row != -1) CheckRow(table, series.row);
    }
  }
  constexpr void CheckComparison(const ComparisonInfo& comparison) const {
    for (const SideInfo& side : {comparison.current, comparison.proposed}) {
      CheckColumn(NeedTable(side.parameter), side.column);
    }
    const TableInfo& table = NeedTable(comparison.current.parameter);
    if (comparison.difference != 0) CheckColumn(table, comparison.difference);
    CheckRow(table, comparison.decides);
    const auto& row = table.rows[static_cast<std::size_t>(comparison.decides - table.firstRow)];
    if (row.better == Better::Neither) throw "the deciding row of a comparison has no better way";
  }

  std::span<const ParameterInfo> parameters_;
};

}  // namespace amortix2::describing
