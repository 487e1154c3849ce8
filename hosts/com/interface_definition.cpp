#include "amortix2/com/interface_definition.h"

#include <initializer_list>
#include <sstream>
#include <stdexcept>

#include "amortix2/com/identity.h"
#include "amortix2/component/description.h"

namespace amortix2::com {
namespace {

std::string_view Identifier(std::string_view name) {
  const std::string_view identifier = IdentifierOf(name);
  if (identifier.empty()) throw std::logic_error(std::string(name) + " has no identifier");
  return identifier;
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + '"';
}

/// What an editor shows of a class, a member or a parameter.
std::string HelpOf(const auto& item) {
  std::string help(item.title);
  if (!item.help.empty() && item.help != item.title) help.append(": ").append(item.help);
  return Quoted(help);
}

/// An identifier as C and C++ programs write it: widl's header names those of records nowhere else.
std::string Initializer(std::string_view identifier) {
  const auto part = [&](std::size_t start, std::size_t length) {
    return "0x" + std::string(identifier.substr(start, length));
  };
  std::string text = "{" + part(0, 8) + ", " + part(9, 4) + ", " + part(14, 4) + ", {";
  for (const std::size_t start : std::initializer_list<std::size_t>{19, 21, 24, 26, 28, 30, 32, 34}) {
    text += (start == 19 ? "" : ", ") + part(start, 2);
  }
  return text + "}}";
}

std::string Attributes(std::string_view name, const auto& described, std::string_view more = "") {
  return "[uuid(" + std::string(Identifier(name)) + ")" + std::string(more) + ", helpstring(" +
         HelpOf(described) + ")]";
}

std::string TypeName(const TypeInfo& type) {
  switch (type.kind) {
    case TypeKind::Variant:
      return "VARIANT";
    case TypeKind::Double:
      return "double";
    case TypeKind::Byte:
      return "unsigned char";
    case TypeKind::Integer:
      return "short";
    case TypeKind::Long:
      return "long";
    case TypeKind::String:
      return "BSTR";
    case TypeKind::Date:
      return "DATE";
    case TypeKind::Enumeration:
      return std::string(type.enumeration->name);
    case TypeKind::Record:
      return std::string(type.record->name);
    case TypeKind::RecordArray:
      return "SAFEARRAY(" + std::string(type.record->name) + ")";
    case TypeKind::ScriptingContext:
      return "IDispatch*";
  }
  throw std::logic_error("a type has no name");
}

void WriteEnumeration(std::ostream& out, const EnumerationInfo& type) {
  out << "\n  typedef " << Attributes(type.name, type) << "\n  enum " << type.name << " {\n";
  for (const ConstantInfo& constant : type.constants) {
    out << "    " << constant.name << " = " << constant.value << ",  // " << constant.help << '\n';
  }
  out << "  } " << type.name << ";\n";
}

void WriteRecord(std::ostream& out, const RecordInfo& record) {
  out << "\n  typedef " << Attributes(record.name, record) << "\n  struct " << record.name << " {\n";
  for (const FieldInfo& field : record.fields) {
    out << "    " << TypeName(*field.type) << ' ' << field.name << ";  // " << field.help << '\n';
  }
  out << "  } " << record.name << ";\n  cpp_quote(\"static const GUID GUID_" << record.name << " = "
      << Initializer(Identifier(record.name)) << ";\")\n";
}

void WriteParameter(std::ostream& out, const ParameterInfo& parameter) {
  out << "\n        [" << (parameter.byReference ? "in, out" : "in")
      << (parameter.optional ? ", optional" : "") << ", HELP(" << HelpOf(parameter) << ")] "
      << TypeName(*parameter.type) << (parameter.byReference ? "* " : " ") << parameter.name;
}

void WriteMember(std::ostream& out, const MemberInfo& member, std::size_t number) {
  out << "      [id(" << number << (member.kind == MemberKind::PropertyPut ? "), propput" : ")")
      << ", helpstring(" << HelpOf(member) << ")]\n      HRESULT " << member.name << '(';
  std::string_view separator;
  for (const ParameterInfo& parameter : member.parameters) {
    out << separator;
    WriteParameter(out, parameter);
    separator = ",";
  }
  if (member.result != nullptr) {
    out << separator << "\n        [out, retval] " << TypeName(*member.result) << "* result";
  }
  out << ");\n";
}

void WriteClass(std::ostream& out, const ClassInfo& type) {
  const std::string interfaceName = InterfaceName(type.name);
  out << "\n  " << Attributes(interfaceName, type, ", dual, oleautomation, nonextensible") << "\n  interface "
      << interfaceName << " : IDispatch {\n";
  std::size_t number = 0;
  for (const MemberInfo& member : type.members) WriteMember(out, member, ++number);
  out << "  };\n\n  " << Attributes(type.name, type) << "\n  coclass " << type.name
      << " {\n    [default] interface " << interfaceName << ";\n  };\n";
}

}  // namespace

std::string InterfaceDefinition() {
  std::ostringstream out;
  out << "// Made from the component's description; change that, and make this text anew.\n\n"
         "import \"oaidl.idl\";\n\n"
         "#define HELP(text) custom("
      << Identifier(kParameterHelp) << ", text)\n\n"
      << "[uuid(" << Identifier(kLibraryName) << "), version(" << InterfaceVersion()
      << "),\n helpstring(\"Amortix2: personal-finance calculators and charts\")]\nlibrary " << kLibraryName
      << " {\n  importlib(\"stdole2.tlb\");\n";
  for (const EnumerationInfo* type : Enumerations()) WriteEnumeration(out, *type);
  for (const RecordInfo* record : Records()) WriteRecord(out, *record);
  for (const ClassInfo* type : Classes()) WriteClass(out, *type);
  out << "}\n";
  return out.str();
}

std::string AssemblyManifest(std::string_view productVersion) {
  std::ostringstream out;
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
         "<assembly xmlns=\"urn:schemas-microsoft-com:asm.v1\" manifestVersion=\"1.0\">\n"
         "  <assemblyIdentity type=\"win32\" name=\""
      << kLibraryName << "\" version=\"" << productVersion << ".0\"/>\n  <file name=\"" << kLibraryName
      << ".dll\">\n    <typelib tlbid=\"{" << Identifier(kLibraryName) << "}\" version=\""
      << InterfaceVersion() << "\" helpdir=\"\"/>\n";
  for (const ClassInfo* type : Classes()) {
    out << "    <comClass clsid=\"{" << Identifier(type->name) << "}\" tlbid=\"{" << Identifier(kLibraryName)
        << "}\"\n              progid=\"" << ProgramId(type->name)
        << "\" threadingModel=\"Both\">\n      <progid>" << VersionedProgramId(type->name)
        << "</progid>\n    </comClass>\n";
  }
  out << "  </file>\n";
  for (const ClassInfo* type : Classes()) {
    const std::string name = InterfaceName(type->name);
    out << "  <comInterfaceExternalProxyStub name=\"" << name << "\" iid=\"{" << Identifier(name)
        << "}\"\n      tlbid=\"{" << Identifier(kLibraryName) << "}\" proxyStubClsid32=\"{"
        << kTypeLibraryProxy << "}\"/>\n";
  }
  out << "</assembly>\n";
  return out.str();
}

std::string InterfaceMembers() {
  std::ostringstream out;
  out << "// Made from the component's description; change that, and make this text anew.\n\n"
         "#pragma once\n\n#include <amortix2.h>\n\n#include <tuple>\n\n"
         "#include \"amortix2/com/dual_interface.h\"\n\n"
         "namespace amortix2::com {\n\n"
         "/// The members of each interface in the order of its vtable, as widl declares them.\n"
         "// clang-format off\n"
         "using InterfaceMembers = std::tuple<";
  std::string_view classSeparator;
  for (const ClassInfo* type : Classes()) {
    out << classSeparator << "\n    MemberList<";
    std::string_view separator;
    for (const MemberInfo& member : type->members) {
      out << separator << "\n        &::" << InterfaceName(type->name)
          << (member.kind == MemberKind::PropertyPut ? "::put_" : "::") << member.name;
      separator = ",";
    }
    out << '>';
    classSeparator = ",";
  }
  out << ">;\n// clang-format on\n\n}  // namespace amortix2::com\n";
  return out.str();
}

}  // namespace amortix2::com
