#include "amortix2/cli/reference.h"

#include <algorithm>
#include <iterator>

#include "amortix2/automation/number_format.h"
#include "amortix2/cli/example.h"
#include "amortix2/json/description_json.h"

namespace amortix2::cli {
namespace {

std::string Sentence(std::string text) {
  if (!text.empty() && !text.ends_with('.')) text += '.';
  return text;
}

std::string InUnit(std::string_view title, Unit unit) {
  std::string text(title);
  if (unit == Unit::None || unit == Unit::Text || SameName(title, UnitName(unit))) return text;
  return text.append(" (").append(UnitName(unit)).append(")");
}

std::string_view OmittedText(const ParameterInfo& parameter) {
  switch (parameter.omitted) {
    case Omitted::Required:
      return "Required.";
    case Omitted::Zero:
      return "Left out: 0.";
    case Omitted::Today:
      return "Left out: today.";
    case Omitted::WholeTerm:
      return "Left out or 0: the whole term.";
    case Omitted::FindIt:
      return "Left out or 0: it is found.";
    case Omitted::Nothing:
      break;
  }
  return "May be left out.";
}

std::string GroupedNumber(double value) {
  static const NumberPattern kPattern("#,##0.###");
  return kPattern.FormatFigure(value);
}

std::string RangeText(const ParameterInfo& parameter) {
  const Range& range = parameter.range;
  if (!range.IsGiven()) return {};
  std::string text = range.step == 1 ? "A whole number from " : "From ";
  text += GroupedNumber(range.least) + " to " + GroupedNumber(range.most);
  if (range.step != 0 && range.step != 1) text += " in steps of " + GroupedNumber(range.step);
  return text + " makes sense.";
}

std::string ChoiceText(const ChoiceInfo& choice) {
  return std::string(choice.text).append(" ").append(choice.title);
}

std::string ChoicesText(const ChoicesInfo& choices) {
  std::string text = "One of ";
  std::string_view separator;
  for (const ChoiceInfo& choice : choices.choices) {
    text.append(separator).append(ChoiceText(choice));
    separator = "; ";
  }
  if (!choices.otherwise.empty()) text.append("; anything else counts as ").append(choices.otherwise);
  return text + ".";
}

void AppendHeadings(std::string& text, std::span<const HeadingInfo> headings, Unit unit) {
  std::string_view separator;
  for (const HeadingInfo& heading : headings) {
    text.append(separator).append(InUnit(heading.title, heading.unit == Unit::None ? unit : heading.unit));
    separator = ", ";
  }
}

std::string AxisText(std::string_view what, const AxisInfo& axis) {
  std::string text(what);
  return text.append(": ")
      .append(InUnit(axis.title, axis.unit))
      .append(", ")
      .append(axis.centre)
      .append(" in the middle and ")
      .append(axis.steps)
      .append(" steps of ")
      .append(axis.step)
      .append(" on each side.");
}

/// The rows and columns of a table in words.
std::vector<std::string> TableText(const TableInfo& table) {
  std::vector<std::string> sentences;
  const auto from = [](std::string_view what, std::int32_t first) {
    return std::string(what).append(" from ").append(std::to_string(first)).append(": ");
  };
  if (!table.rows.empty()) {
    std::string& rows =
        sentences.emplace_back(from(table.columns.empty() ? "Elements" : "Rows", table.firstRow));
    AppendHeadings(rows, table.rows, table.unit);
    rows += ".";
  }
  if (!table.columns.empty()) {
    std::string& columns = sentences.emplace_back(from("Columns", table.firstColumn));
    AppendHeadings(columns, table.columns, table.unit);
    columns += table.repeats ? "; and again for each further item." : ".";
  }
  if (table.isSchedule) sentences.emplace_back("Row 0 is the start.");
  if (table.rowAxis) sentences.push_back(AxisText("Rows", *table.rowAxis));
  if (table.columnAxis) sentences.push_back(AxisText("Columns", *table.columnAxis));
  return sentences;
}

std::vector<std::string> QuestionTexts(std::span<const QuestionInfo> questions) {
  std::vector<std::string> texts;
  int number = 0;
  for (const QuestionInfo& question : questions) {
    std::string text = "Question " + std::to_string(++number) + ": " + std::string(question.text);
    for (const ChoiceInfo& answer : question.answers) text += " " + ChoiceText(answer) + ".";
    texts.push_back(std::move(text));
  }
  return texts;
}

Item InputItem(const ParameterInfo& parameter) {
  Item item{std::string(parameter.name), InUnit(parameter.title, parameter.unit), {}};
  if (parameter.help != parameter.title) item.sentences.push_back(Sentence(std::string(parameter.help)));
  if (parameter.type->kind != TypeKind::Variant) {
    item.sentences.push_back("Type: " + json::TypeText(*parameter.type) + ".");
  }
  if (parameter.choices) item.sentences.push_back(ChoicesText(*parameter.choices));
  if (std::string range = RangeText(parameter); !range.empty()) item.sentences.push_back(std::move(range));
  if (parameter.table) std::ranges::move(TableText(*parameter.table), std::back_inserter(item.sentences));
  item.points = QuestionTexts(parameter.questions);
  if (parameter.role == Role::InOut) item.sentences.emplace_back("Comes back changed.");
  item.sentences.emplace_back(OmittedText(parameter));
  return item;
}

Item ResultItem(const ParameterInfo& parameter, const ExampleAnswer& example) {
  Item item{std::string(parameter.name), InUnit(parameter.title, parameter.unit), {}};
  if (parameter.help != parameter.title) item.sentences.push_back(Sentence(std::string(parameter.help)));
  if (parameter.type->kind != TypeKind::Variant) {
    item.sentences.push_back("Type: " + json::TypeText(*parameter.type) + ".");
  }
  if (!parameter.echoes.empty()) {
    item.sentences.push_back("Gives " + std::string(parameter.echoes) + " back, found or as given.");
  }
  if (parameter.table) std::ranges::move(TableText(*parameter.table), std::back_inserter(item.sentences));
  const auto cell = std::ranges::find(example.results, parameter.name, &ExampleCell::name);
  if (cell != example.results.end() && !cell->text.empty()) {
    item.sentences.push_back(Sentence("In the example: " + cell->text));
  }
  return item;
}

void AppendItems(Document& document, int level, std::string title, std::vector<Item> items) {
  if (items.empty()) return;
  document.push_back(Heading{level, std::move(title)});
  document.push_back(Items{std::move(items)});
}

void AppendExample(Document& document, int level, const ClassMember& member, const ExampleAnswer& example) {
  document.push_back(Heading{level, "Example"});
  document.push_back(Code{ExampleCommand(*member.type, *member.member)});
  for (std::string& file : ExampleFiles(*member.member)) document.push_back(Paragraph{std::move(file)});
  if (!example.sentence.empty()) document.push_back(Paragraph{example.sentence});
  for (const ExampleCell& cell : example.results) {
    if (!cell.rows.empty()) document.push_back(Grid{cell.rows});
  }
}

void AppendMistakes(Document& document, int level, const Mistakes& mistakes) {
  const auto append = [&](const char* title, const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    if (lines.empty()) return;
    document.push_back(Heading{level, title});
    document.push_back(Code{text});
  };
  append("Errors", mistakes.errors);
  append("Notes", mistakes.notes);
}

Item OverviewItem(const ClassMember& member) {
  const MemberInfo& info = *member.member;
  std::string term = info.address.empty() ? std::string(info.name) : std::string(info.address);
  std::vector<std::string> sentences{Sentence(std::string(info.help))};
  if (!info.address.empty()) sentences.push_back(FullName(member));
  return {std::move(term), std::string(info.title), std::move(sentences)};
}

}  // namespace

std::string FullName(const ClassMember& member) {
  return std::string(member.type->name).append(".").append(member.member->name);
}

void Append(Document& document, Document more) { std::ranges::move(more, std::back_inserter(document)); }

Document MemberReference(const ClassInfo& type, const MemberInfo& member, int level) {
  const ClassMember both{&type, &member};
  const ExampleAnswer example = AnswerOfExample(type, member);
  const std::string name = FullName(both);
  Document document{Heading{level, level == 1 ? name : std::string(member.title)}};
  std::string opening = level == 1 ? std::string(member.title) + ". " : name + ". ";
  opening += Sentence(std::string(member.help));
  if (!member.address.empty()) opening += " Short name: " + std::string(member.address) + ".";
  document.push_back(Paragraph{std::move(opening)});

  std::vector<Item> inputs;
  std::vector<Item> results;
  for (const ParameterInfo& parameter : member.parameters) {
    if (parameter.role == Role::Result) {
      results.push_back(ResultItem(parameter, example));
    } else {
      inputs.push_back(InputItem(parameter));
    }
  }
  if (member.result) results.push_back({"returns", json::TypeText(*member.result), {}});
  AppendItems(document, level + 1, "Asks for", std::move(inputs));
  for (const ListInfo& list : member.lists) {
    std::string names;
    for (const std::string_view input : list.inputs) names.append(names.empty() ? "" : ", ").append(input);
    document.push_back(Paragraph{names + " are lists of one length, with an element for each " +
                                 std::string(list.title) + "."});
  }
  AppendItems(document, level + 1, "Gives", std::move(results));
  AppendExample(document, level + 1, both, example);
  AppendMistakes(document, level + 1, MistakesIn(type, member));
  return document;
}

Document Overview(std::span<const ClassMember> members, int level) {
  Document document;
  for (std::size_t first = 0; first < members.size();) {
    const Group group = members[first].member->group;
    std::vector<Item> items;
    std::size_t next = first;
    for (; next < members.size() && members[next].member->group == group; ++next) {
      items.push_back(OverviewItem(members[next]));
    }
    AppendItems(document, level, std::string(GroupTitle(group)), std::move(items));
    first = next;
  }
  return document;
}

Document ClassReference(const ClassInfo& type, int level) {
  Document document{Heading{level, std::string(type.name)},
                    Paragraph{std::string(type.title) + ". " + Sentence(std::string(type.help))}};
  std::vector<Item> methods;
  std::vector<Item> settings;
  for (const MemberInfo* member : type.inOrder) {
    const ClassMember both{&type, member};
    if (!member->address.empty()) {
      methods.push_back(OverviewItem(both));
      continue;
    }
    Item item = OverviewItem(both);
    item.title += member->kind == MemberKind::PropertyPut ? " (property, write-only)" : "";
    for (const ParameterInfo& parameter : member->parameters) {
      if (parameter.choices) item.sentences.push_back(ChoicesText(*parameter.choices));
    }
    settings.push_back(std::move(item));
  }
  AppendItems(document, level + 1, "Methods", std::move(methods));
  AppendItems(document, level + 1, "Settings", std::move(settings));
  return document;
}

Document RecordReference(const RecordInfo& record, int level) {
  Document document{Heading{level, std::string(record.name)},
                    Paragraph{std::string(record.title) + ". " + Sentence(std::string(record.help))}};
  std::vector<Item> fields;
  for (const FieldInfo& field : record.fields) {
    fields.push_back({std::string(field.name),
                      InUnit(field.title, field.unit),
                      {Sentence(std::string(field.help)), "Type: " + json::TypeText(*field.type) + "."}});
  }
  AppendItems(document, level + 1, "Fields", std::move(fields));
  return document;
}

Document EnumerationReference(const EnumerationInfo& enumeration, int level) {
  Document document{
      Heading{level, std::string(enumeration.name)},
      Paragraph{std::string(enumeration.title) + ". " + Sentence(std::string(enumeration.help))}};
  std::vector<Item> constants;
  for (const ConstantInfo& constant : enumeration.constants) {
    constants.push_back({std::to_string(constant.value),
                         std::string(constant.title) + " (" + std::string(constant.name) + ")",
                         {Sentence(std::string(constant.help))}});
  }
  document.push_back(Items{std::move(constants)});
  return document;
}

}  // namespace amortix2::cli
