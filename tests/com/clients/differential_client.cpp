// Answers requests as `amortix2 batch --types` does, through the registered server: reads request lines from
// standard input and writes a reply line for each, so that the two can be compared byte by byte.

#include <iostream>
#include <new>

#include "amortix2/json/json_text.h"
#include "amortix2/json/lookup.h"
#include "amortix2/json/request.h"
#include "amortix2/json/variant_reader.h"
#include "amortix2/json/variant_writer.h"
#include "client.h"

using namespace amortix2;
using namespace amortix2::com;
using namespace amortix2::com::client;
using namespace amortix2::json;

namespace {

/// The page of a chart, whose response keeps what is written to it.
struct Page {
  std::vector<std::uint8_t> written;
  Scripted response{{{L"BinaryWrite", [this](std::span<VARIANT> arguments) {
                        CHECK(arguments.size() == 1 && arguments[0].vt == (VT_ARRAY | VT_UI1));
                        SAFEARRAY* bytes = arguments[0].parray;
                        const auto* first = static_cast<const std::uint8_t*>(SafeArrayData(bytes).At(0));
                        written.assign(first, first + bytes->rgsabound[0].cElements);
                        return OwnedVariant();
                      }}}};
  Scripted context{{{L"Response", [this](auto) { return response.AsArgument(); }}}};
};

void Set(IDispatch& object, const MemberInfo& member, const Tree& value) {
  const std::wstring name = ToWide(member.name);
  std::vector<OwnedVariant> arguments;
  if (member.kind == MemberKind::Method) {
    for (const Tree& item : value) arguments.push_back(MakeValue(ToVariant(item)));
    CallByName(object, name.c_str(), arguments);
  } else {
    PutByName(object, name.c_str(), MakeValue(ToVariant(value)));
  }
}

std::string Reply(const std::string& line) {
  const Tree tree = *ParseTree(line).tree;
  const Request request = ReadRequest(tree);
  const Target target = FindTarget(request.call);
  const auto object = Create((L"Amortix2." + ToWide(target.type.name)).c_str());
  Page page;
  if (target.type.name == "GifChart") {
    OwnedVariant context = page.context.AsArgument();
    CallByName(*object.Get(), L"OnStartPage", {&context, 1});
  }
  std::vector<OwnedVariant> places;
  std::vector<OwnedVariant> arguments;
  places.reserve(request.arguments.size());
  for (const auto& [name, value] : request.arguments) {
    OwnedVariant& place = places.emplace_back(MakeValue(ToVariant(value)));
    arguments.push_back(Reference(place));
  }
  const int error = NumberOf([&] {
    for (const auto& [name, value] : request.settings)
      Set(*object.Get(), NeedMember(target.type, name), value);
    CallByName(*object.Get(), ToWide(target.method.name).c_str(), arguments);
  });

  std::string out;
  ObjectWriter reply(out);
  AppendTree(reply.Field("id"), tree["id"]);
  if (error != 0) {
    ObjectWriter failure(reply.Field("error"));
    AppendNumber(failure.Field("number"), std::int64_t{error});
    AppendText(failure.Field("name"), ErrorName(ErrorNumber{error}));
    failure.Close();
  }
  ObjectWriter results(reply.Field("results"));
  for (std::size_t i = 0; i < places.size(); ++i) {
    const ParameterInfo& parameter = target.method.parameters[i];
    if (parameter.byReference)
      AppendVariant(results.Field(parameter.name), ReadValue(places[i].Get()), Form::WithTypes);
  }
  results.Close();
  if (!page.written.empty()) AppendBase64(reply.Field("response"), page.written);
  reply.Close();
  return out;
}

}  // namespace

int main() {
  return Run(COINIT_APARTMENTTHREADED, [] {
    for (std::string line; std::getline(std::cin, line);) std::puts(Reply(line).c_str());
  });
}
