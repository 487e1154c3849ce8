#include "amortix2/json/lookup.h"

#include <algorithm>
#include <string>
#include <vector>

#include "amortix2/automation/text_scanner.h"
#include "amortix2/json/request_error.h"

namespace amortix2::json {
namespace {

using Names = std::vector<std::string_view>;

Names NamesOf(const auto& items) {
  Names names;
  for (const auto& item : items) names.push_back(item.name);
  return names;
}

/// How many letters must be put in, left out or changed to make one name of the other, whatever their case.
std::size_t Distance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t changed = diagonal + (ToLower(a[i - 1]) != ToLower(b[j - 1]) ? 1 : 0);
      diagonal = row[j];
      row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row[b.size()];
}

[[noreturn]] void RaiseUnknown(const std::string& owner, std::string_view kind, std::string_view asked,
                               const Names& names) {
  std::string message = owner + " has no " + std::string(kind) + " " + Quoted(asked);
  const auto closest = Closest(Shortened(asked), names);
  message += closest.empty() ? "." : "; did you mean " + std::string(closest) + "?";
  message += names.empty() ? " There are none." : " There are:";
  for (const std::string_view name : names) message.append(" ").append(name);
  throw RequestError(ErrorNumber::NoSuchMember, std::move(message));
}

template <class Item>
std::size_t PlaceIn(const Item* found, std::span<const Item> items, std::string_view owner,
                    std::string_view kind, std::string_view asked) {
  if (!found) RaiseUnknown(std::string(owner), kind, asked, NamesOf(items));
  return static_cast<std::size_t>(found - items.data());
}

bool IsCalled(const MemberInfo& member, std::string_view name) {
  return member.kind == MemberKind::Method && (SameName(member.name, name) || SameName(member.address, name));
}

}  // namespace

std::string_view Closest(std::string_view asked, std::span<const std::string_view> names) {
  for (const std::string_view name : names) {
    if (!asked.empty() && SameName(name.substr(0, asked.size()), asked)) return name;
  }
  std::string_view closest;
  std::size_t least = asked.size() / 3 + 2;
  for (const std::string_view name : names) {
    if (const std::size_t distance = Distance(asked, name); distance < least) {
      least = distance;
      closest = name;
    }
  }
  return closest;
}

Target FindTarget(std::string_view name) {
  const std::size_t dot = name.find('.');
  if (dot == std::string_view::npos) {
    throw RequestError("what to call is CLASS.METHOD, not " + Quoted(name));
  }
  const ClassInfo& type = NeedClass(name.substr(0, dot));
  const MemberInfo& method = NeedMember(type, name.substr(dot + 1));
  if (method.kind != MemberKind::Method) {
    throw RequestError(ErrorNumber::NoSuchMember, std::string(type.name) + "." + std::string(method.name) +
                                                      " is a property: it is set before a call, not called");
  }
  return {type, method};
}

namespace {

bool HasWord(std::string_view text, std::string_view word) {
  for (std::size_t i = 0; i + word.size() <= text.size(); ++i) {
    if (SameName(text.substr(i, word.size()), word)) return true;
  }
  return false;
}

/// True when a member's titles, help or choices have a word.
bool IsAbout(const MemberInfo& member, std::string_view word) {
  const auto has = [&](std::string_view text) { return HasWord(text, word); };
  const auto offers = [&](const ParameterInfo& parameter) {
    return parameter.choices && std::ranges::any_of(parameter.choices->choices, has, &ChoiceInfo::title);
  };
  return has(member.title) || has(member.name) || has(member.help) ||
         std::ranges::any_of(member.parameters, offers);
}

/// What a person who wrote `name` may have looked for: what has it in a title or a line of help, else what is
/// written much the same.
std::string Suggestion(std::string_view name, std::span<const std::string_view> names) {
  constexpr std::size_t kShortest = 3;
  std::string message;
  for (const auto& [type, member] : MembersInOrder()) {
    if (name.size() < kShortest || member->address.empty()) continue;
    if (!IsAbout(*member, name)) continue;
    message += message.empty() ? "; what comes near: " : ", ";
    message.append(member->address).append(" (").append(member->title).append(")");
  }
  if (!message.empty()) return message;
  const std::string_view closest = Closest(Shortened(name), names);
  return closest.empty() ? "; amortix2 list shows all" : "; did you mean " + std::string(closest) + "?";
}

}  // namespace

Target FindCalled(std::string_view name) {
  if (name.find('.') != std::string_view::npos) return FindTarget(name);
  std::vector<ClassMember> found;
  Names names;
  for (const ClassMember& candidate : MembersInOrder()) {
    if (!name.empty() && IsCalled(*candidate.member, name)) found.push_back(candidate);
    if (!candidate.member->address.empty()) names.push_back(candidate.member->address);
    if (candidate.member->kind == MemberKind::Method) names.push_back(candidate.member->name);
  }
  if (found.size() == 1) return {*found.front().type, *found.front().member};
  std::string message;
  if (found.empty()) {
    message = "there is nothing to call by the name " + Quoted(name) + Suggestion(name, names);
  } else {
    message = Quoted(name) + " is in several classes: say";
    for (const auto& [type, member] : found) {
      message.append(" ").append(type->name).append(".").append(member->name);
      message += &member == &found.back().member ? "" : " or";
    }
  }
  throw RequestError(ErrorNumber::NoSuchMember, std::move(message));
}

const ClassInfo& NeedClass(std::string_view name) {
  if (const ClassInfo* type = FindClass(name)) return *type;
  Names names;
  for (const ClassInfo* type : Classes()) names.push_back(type->name);
  RaiseUnknown("the component", "class", name, names);
}

const MemberInfo& NeedMember(const ClassInfo& type, std::string_view name) {
  return type.members[PlaceIn(FindMember(type, name), type.members, type.name, "member", name)];
}

void NeedResult(const MemberInfo& member, std::string_view name) {
  Names names;
  for (const ParameterInfo& parameter : member.parameters) {
    if (parameter.byReference) names.push_back(parameter.name);
  }
  if (member.result) names.emplace_back("return");
  names.emplace_back("response");
  const auto isNamed = [&](std::string_view known) { return SameName(known, name); };
  if (std::ranges::none_of(names, isNamed)) RaiseUnknown(std::string(member.name), "result", name, names);
}

std::size_t PlaceOfParameter(const MemberInfo& member, std::string_view name) {
  return PlaceIn(FindParameter(member, name), member.parameters, member.name, "argument", name);
}

std::size_t PlaceOfField(const RecordInfo& record, std::string_view name) {
  return PlaceIn(FindField(record, name), record.fields, record.name, "field", name);
}

}  // namespace amortix2::json
