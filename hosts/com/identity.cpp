#include "amortix2/com/identity.h"

#include <algorithm>
#include <array>

namespace amortix2::com {
namespace {

struct Identity {
  std::string_view name;
  std::string_view identifier;
};

constexpr std::array kIdentities{
    Identity{kLibraryName, "b2bafb6c-80f1-45f3-b81f-0555abbf5b15"},
    Identity{kParameterHelp, "8405eb34-377c-4f53-952c-451af71c83c6"},

    Identity{"Calculator", "53c5240d-96bd-4d24-bfc3-1fcade3ecd52"},
    Identity{"BarChart", "12097c0e-a08d-4145-b3ae-c9090db3714e"},
    Identity{"GifChart", "9ba841cc-d306-4736-93fb-db53a5312ad8"},
    Identity{"InvestmentStrategy", "14643a4b-d354-4b01-87c4-11636f7638d4"},
    Identity{"SvgChart", "332a8a78-271d-4b02-84fa-098cc194be38"},

    Identity{"_Calculator", "7b1c8abc-0e5e-44c3-ba36-67f7547516f0"},
    Identity{"_BarChart", "e9cb113a-8a2e-495a-bc76-945a191e1ba3"},
    Identity{"_GifChart", "068ca09e-81d5-4065-93fe-8aba86e93aa4"},
    Identity{"_InvestmentStrategy", "7045e534-2931-41e9-be44-a23186ae3e95"},
    Identity{"_SvgChart", "b068978f-e9d8-4759-bbe2-b39c77f57eb7"},

    Identity{"tSchedule", "5ef26671-2217-41eb-99a0-2460b5581be0"},
    Identity{"tLoanDesc", "ac2be958-6f01-4c5d-90f1-594a2530d057"},
    Identity{"tSavingsDesc", "0a137b13-cb84-4fe4-a150-193da3a71b5b"},
    Identity{"tGoalDesc", "7868d8be-253c-40d0-85fa-9cc35b9889bf"},
    Identity{"tCreditQualification", "c3e534a2-3011-48ab-a947-f97e1a10c5ff"},
    Identity{"GifHeader", "74258596-96c4-4439-9b4c-c9953fac4fa8"},
    Identity{"ImageBlock", "22d90008-ce12-4bd7-b6f5-ff7e6d060338"},

    Identity{"specialConstants", "080dd145-97fd-4e62-b10d-66f108afbeeb"},
    Identity{"enumAmortixType", "f968e7a1-5b3a-423e-8ca9-0736131ef085"},
    Identity{"enumLoanType", "3f923550-be02-4065-a6fd-e66305acc394"},
    Identity{"enumSavingsType", "c170525a-8418-4de6-8ced-b5607141548f"},
    Identity{"enumFrequencyType", "48dfd11c-bc2f-4e3b-8281-792c71f919bf"},
};

}  // namespace

std::string InterfaceVersion() {
  return std::to_string(kInterfaceMajor) + "." + std::to_string(kInterfaceMinor);
}

std::string InterfaceName(std::string_view className) { return "_" + std::string(className); }

std::string ProgramId(std::string_view className) {
  return std::string(kLibraryName) + "." + std::string(className);
}

std::string VersionedProgramId(std::string_view className) {
  return ProgramId(className) + "." + std::to_string(kInterfaceMajor);
}

std::string_view IdentifierOf(std::string_view name) noexcept {
  const auto found = std::ranges::find(kIdentities, name, &Identity::name);
  return found == kIdentities.end() ? std::string_view() : found->identifier;
}

}  // namespace amortix2::com
