#include "amortix2/com/registry_entries.h"

#include <utility>

#include "amortix2/com/identity.h"
#include "amortix2/com/text.h"
#include "amortix2/component/description.h"

namespace amortix2::com {
namespace {

constexpr const wchar_t* kPlatform = sizeof(void*) == 8 ? L"win64" : L"win32";

std::wstring Braced(std::string_view name) { return L"{" + ToWide(IdentifierOf(name)) + L"}"; }

class EntryList {
 public:
  explicit EntryList(std::wstring dllPath) : dllPath_(std::move(dllPath)) {
    AddLibrary();
    for (const ClassInfo* type : Classes()) AddClass(*type);
    entries_.sign = L"CLSID\\" + Braced(Classes().front()->name);
  }

  RegistryEntries Take() { return std::move(entries_); }

 private:
  void Put(const std::wstring& key, const std::wstring& text, const std::wstring& name = {}) {
    entries_.values.push_back({key, name, text});
  }

  void AddLibrary() {
    const std::wstring key = L"TypeLib\\" + library_;
    entries_.sharedKeys.push_back(key);
    entries_.ownKeys.push_back(key + L"\\" + version_ + L"\\0\\" + kPlatform);
    Put(key + L"\\" + version_, ToWide(kLibraryName));
    Put(key + L"\\" + version_ + L"\\FLAGS", L"0");
    Put(key + L"\\" + version_ + L"\\0\\" + kPlatform, dllPath_);
  }

  void AddClass(const ClassInfo& type) {
    const std::wstring identifier = Braced(type.name);
    const std::wstring plain = ToWide(ProgramId(type.name));
    const std::wstring versioned = ToWide(VersionedProgramId(type.name));
    const std::wstring friendly = ToWide(kLibraryName) + L" " + ToWide(type.name);

    const std::wstring key = L"CLSID\\" + identifier;
    entries_.ownKeys.push_back(key);
    Put(key, friendly);
    Put(key + L"\\InprocServer32", dllPath_);
    Put(key + L"\\InprocServer32", L"Both", L"ThreadingModel");
    Put(key + L"\\ProgID", versioned);
    Put(key + L"\\VersionIndependentProgID", plain);
    Put(key + L"\\TypeLib", library_);
    Put(key + L"\\Version", version_);
    Put(key + L"\\Programmable", L"");

    entries_.sharedKeys.push_back(plain);
    Put(plain, friendly);
    Put(plain + L"\\CLSID", identifier);
    Put(plain + L"\\CurVer", versioned);

    entries_.sharedKeys.push_back(versioned);
    Put(versioned, friendly);
    Put(versioned + L"\\CLSID", identifier);

    const std::string interfaceName = InterfaceName(type.name);
    const std::wstring interfaceKey = L"Interface\\" + Braced(interfaceName);
    entries_.ownKeys.push_back(interfaceKey);
    Put(interfaceKey, ToWide(interfaceName));
    Put(interfaceKey + L"\\ProxyStubClsid32", L"{" + ToWide(kTypeLibraryProxy) + L"}");
    Put(interfaceKey + L"\\TypeLib", library_);
    Put(interfaceKey + L"\\TypeLib", version_, L"Version");
  }

  std::wstring dllPath_;
  std::wstring library_ = Braced(kLibraryName);
  std::wstring version_ = ToWide(InterfaceVersion());
  RegistryEntries entries_;
};

}  // namespace

RegistryEntries EntriesFor(const std::wstring& dllPath) { return EntryList(dllPath).Take(); }

}  // namespace amortix2::com
