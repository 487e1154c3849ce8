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

/// The name meant, probably: one that begins like what was asked for, else one with few letters changed.
std::string_view Closest(std::string_view asked, const Names& names) {
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

}  // namespace

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

const ClassInfo& NeedClass(std::string_view name) {
  if (const ClassInfo* type = FindClass(name)) return *type;
  Names names;
  for (const ClassInfo* type : Classes()) names.push_back(type->name);
  RaiseUnknown("the component", "class", name, names);
}

const MemberInfo& NeedMember(const ClassInfo& type, std::string_view name) {
  return type.members[PlaceIn(FindMember(type, name), type.members, type.name, "member", name)];
}

std::size_t PlaceOfParameter(const MemberInfo& member, std::string_view name) {
  return PlaceIn(FindParameter(member, name), member.parameters, member.name, "argument", name);
}

std::size_t PlaceOfField(const RecordInfo& record, std::string_view name) {
  return PlaceIn(FindField(record, name), record.fields, record.name, "field", name);
}

}  // namespace amortix2::json
