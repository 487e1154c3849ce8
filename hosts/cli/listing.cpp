#include "amortix2/cli/listing.h"

#include <algorithm>

#include "amortix2/cli/reference.h"
#include "amortix2/json/description_json.h"
#include "amortix2/json/lookup.h"

namespace amortix2::cli {
namespace {

/// True when a word of the text begins like this.
bool HasWord(std::string_view text, std::string_view start) {
  for (std::size_t i = 0; i + start.size() <= text.size(); ++i) {
    if ((i == 0 || text[i - 1] == ' ') && SameName(text.substr(i, start.size()), start)) return true;
  }
  return false;
}

template <class Matches>
std::vector<ClassMember> MembersThat(const Matches& matches) {
  std::vector<ClassMember> found;
  std::ranges::copy_if(MembersInOrder(), std::back_inserter(found), matches);
  return found;
}

/// Members by name, short name or group, and if there are none by how a word in their title or help begins.
std::vector<ClassMember> MembersCalled(std::string_view name) {
  auto found = MembersThat([&](const ClassMember& member) {
    return SameName(member.member->name, name) || SameName(member.member->address, name);
  });
  if (!found.empty() || name.empty()) return found;
  found = MembersThat([&](const ClassMember& member) {
    return SameName(GroupTitle(member.member->group), name) || HasWord(member.member->title, name);
  });
  if (!found.empty()) return found;
  return MembersThat([&](const ClassMember& member) { return HasWord(member.member->help, name); });
}

Document MembersOf(const std::vector<ClassMember>& members) {
  constexpr std::size_t kMostPages = 2;
  if (members.size() > kMostPages) return Overview(members);
  Document pages;
  for (const ClassMember& member : members) Append(pages, MemberReference(*member.type, *member.member));
  return pages;
}

Document Found(std::string_view name) {
  if (const std::size_t dot = name.find('.'); dot != std::string_view::npos) {
    const ClassInfo& type = json::NeedClass(name.substr(0, dot));
    return MemberReference(type, json::NeedMember(type, name.substr(dot + 1)));
  }
  if (const ClassInfo* type = FindClass(name)) return ClassReference(*type);
  for (const RecordInfo* record : Records()) {
    if (SameName(record->name, name)) return RecordReference(*record);
  }
  for (const EnumerationInfo* enumeration : Enumerations()) {
    if (SameName(enumeration->name, name)) return EnumerationReference(*enumeration);
  }
  const std::vector<ClassMember> members = MembersCalled(name);
  if (members.empty()) {
    const json::Target near = json::FindCalled(name);  // raises, and names what is near
    return MemberReference(near.type, near.method);
  }
  return MembersOf(members);
}

}  // namespace

std::string MemberPage(const ClassInfo& type, const MemberInfo& member) {
  return TerminalText(MemberReference(type, member));
}

std::string ListingOf(const std::vector<std::string>& names, bool asJson) {
  if (asJson) return json::DescriptionJson() + "\n";
  Document document;
  if (names.empty()) {
    document =
        Overview(MembersThat([](const ClassMember& member) { return !member.member->address.empty(); }));
    document.push_back(Paragraph{
        "amortix2 list NAME says all about a short name, CLASS.METHOD, class, record or enumeration."});
  }
  for (const std::string& name : names) Append(document, Found(name));
  return TerminalText(document);
}

}  // namespace amortix2::cli
