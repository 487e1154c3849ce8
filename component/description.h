#pragma once

// What the component offers, as data: its classes with their members and parameters, its records and its
// enumerations, each with a title (for labels), a line of help and a unit. Hosts are made from these tables
// alone: they create an object, find a member by name, make one value per parameter, call, and read the
// values back. What they tell people beside it is in meaning.h. Everything here lives as long as the program
// and never changes; what it holds was checked when it was compiled (describe.h).

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "amortix2/automation/array.h"
#include "amortix2/automation/date.h"
#include "amortix2/automation/variant.h"
#include "amortix2/component/meaning.h"

namespace amortix2 {

struct RecordInfo;
struct EnumerationInfo;

enum class TypeKind : std::uint8_t {
  Variant,
  Double,
  Byte,     ///< 8 bits, unsigned
  Integer,  ///< 16 bits
  Long,     ///< 32 bits
  String,
  Date,
  Enumeration,  ///< 32 bits
  Record,
  RecordArray,       ///< one-dimensional, with bounds
  ScriptingContext,  ///< the page's context, a std::shared_ptr<ScriptingContext>
};

/// How a host handles a C++ value of some type without knowing the type.
struct TypeInfo {
  TypeKind kind;
  const EnumerationInfo* enumeration;  ///< of an Enumeration, else null
  const RecordInfo* record;            ///< of a Record or of a RecordArray's elements, else null

  void* (*create)();                ///< a new value, zero or empty
  void (*destroy)(void*) noexcept;  ///< of a value that `create` made

  // Null for records, arrays of records and contexts. `write` converts strictly (automation/conversion.h) and
  // raises TypeMismatch or Overflow.
  Variant (*read)(const void* value);
  void (*write)(void* value, const Variant& from);

  // Null but for arrays of records. `resize` makes all records anew; it and `at` raise SubscriptOutOfRange.
  Bounds (*bounds)(const void* value);
  void (*resize)(void* value, Bounds bounds);
  void* (*at)(void* value, std::int64_t index);
};

/// A value of some described type, owned.
class Value {
 public:
  explicit Value(const TypeInfo& type) : type_(&type), value_(type.create(), type.destroy) {}
  const TypeInfo& Type() const noexcept { return *type_; }
  void* Get() noexcept { return value_.get(); }
  const void* Get() const noexcept { return value_.get(); }

 private:
  const TypeInfo* type_;
  std::unique_ptr<void, void (*)(void*) noexcept> value_;
};

struct FieldInfo {
  std::string_view name;
  std::string_view title;
  Unit unit;
  std::string_view help;
  const TypeInfo* type;
  void* (*in)(void* record);  ///< the field's place in a record
};

struct RecordInfo {
  std::string_view name;
  std::string_view title;
  std::string_view help;
  std::span<const FieldInfo> fields;  ///< in the order of the record
};

struct ConstantInfo {
  std::string_view name;
  std::int32_t value;
  std::string_view title;
  std::string_view help;
};

struct EnumerationInfo {
  std::string_view name;
  std::string_view title;
  std::string_view help;
  std::span<const ConstantInfo> constants;
};

struct ParameterInfo {
  std::string_view name;
  std::string_view title;
  Unit unit = Unit::None;
  std::string_view help;

  Role role = Role::Input;
  Omitted omitted = Omitted::Required;  ///< of inputs
  Range range;                          ///< what makes sense
  Range limit;                          ///< what a server lets in, so that no call takes long or much memory
  /// As the command line takes it (a number, an ISO date, a text, JSON for arrays and records). The examples
  /// of a member's inputs make one sensible request; an input without one is left out of it.
  std::string_view example;
  std::string_view echoes;                  ///< of a result: the input that it returns, found or as given
  const ChoicesInfo* choices = nullptr;     ///< what it may be; null: no choice
  const TableInfo* table = nullptr;         ///< what its rows and columns are; null for single values
  std::span<const QuestionInfo> questions;  ///< that a list of answers answers, from index 1 on

  bool optional = false;     ///< may be left out, and is Missing then; only variants, at the end
  bool byReference = false;  ///< the callee may change it, and the caller sees the change
  const TypeInfo* type = nullptr;

  constexpr bool IsInput() const { return role == Role::Input || role == Role::InOut; }
  constexpr bool IsResult() const { return role == Role::Result || role == Role::InOut; }
};

enum class MemberKind : std::uint8_t {
  Method,
  PropertyPut,  ///< a write-only property: one parameter, its new value
};

struct MemberInfo {
  std::string_view name;
  std::string_view title;    ///< "Refinancing"
  std::string_view address;  ///< a short name of its own for addresses: "refinance"; empty for settings
  Group group;
  MemberKind kind;
  std::string_view help;
  std::span<const FindInfo> finds;    ///< what it answers; empty for charts, settings and record entries
  std::span<const ChartInfo> charts;  ///< that show its answer
  std::span<const ListInfo> lists;    ///< inputs that are lists
  const ComparisonInfo* comparison;   ///< null when it compares nothing
  std::string_view horizon;           ///< the input that says how long a loan is kept; empty: none
  std::span<const ParameterInfo> parameters;
  const TypeInfo* result;  ///< null when the member returns nothing

  /// Calls the member of `object` with one value per parameter, each of the parameter's type; `result` is
  /// null exactly when the member returns nothing. Errors are raised as AutomationError; by-reference values
  /// then hold what had been written.
  void (*call)(void* object, std::span<void* const> arguments, void* result);

  bool reachesFiles;   ///< reads or writes a file that its caller names
  bool changesObject;  ///< false for a const member: any number of threads may call it at once
};

struct ClassInfo {
  std::string_view name;
  std::string_view title;
  std::string_view help;
  std::span<const MemberInfo> members;         ///< a member's place here, from 1, is its dispatch number
  std::span<const MemberInfo* const> inOrder;  ///< the same in the order in which they are shown

  void* (*create)(const Clock& clock);  ///< the clock must outlive the object
  void (*destroy)(void*) noexcept;
};

/// An object of a described class, owned.
class Object {
 public:
  Object(const ClassInfo& type, const Clock& clock)
      : type_(&type), object_(type.create(clock), type.destroy) {}
  const ClassInfo& Class() const noexcept { return *type_; }
  void* Get() noexcept { return object_.get(); }

 private:
  const ClassInfo* type_;
  std::unique_ptr<void, void (*)(void*) noexcept> object_;
};

std::span<const ClassInfo* const> Classes() noexcept;
std::span<const RecordInfo* const> Records() noexcept;
std::span<const EnumerationInfo* const> Enumerations() noexcept;

/// True when two names are the same whatever the case of their ASCII letters, as page scripts compare names.
bool SameName(std::string_view a, std::string_view b) noexcept;

/// A member with the class that it belongs to.
struct ClassMember {
  const ClassInfo* type;
  const MemberInfo* member;
};

/// The members of all classes in the order in which a person looks for them: by group, and within it as their
/// classes show them.
std::span<const ClassMember> MembersInOrder();

// Look-ups by name, whatever the case; null when there is none.
const ClassInfo* FindClass(std::string_view name) noexcept;
const MemberInfo* FindMember(const ClassInfo& type, std::string_view name) noexcept;
const ParameterInfo* FindParameter(const MemberInfo& member, std::string_view name) noexcept;
const FieldInfo* FindField(const RecordInfo& record, std::string_view name) noexcept;

/// The choice that `text` gives, by its value, its title or its constant's name; null when it gives none.
const ChoiceInfo* FindChoice(const ChoicesInfo& choices, std::string_view text) noexcept;

}  // namespace amortix2
