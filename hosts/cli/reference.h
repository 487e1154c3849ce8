#pragma once

// The reference: what the description says of classes, members, records and enumerations, as structured text.
// Every page about them, on a terminal or in a file, is made of these.

#include <span>

#include "amortix2/cli/document.h"
#include "amortix2/component/description.h"

namespace amortix2::cli {

/// All of one member: what it asks, what it gives, its tables, an example, errors and notes. Its heading has
/// the level given.
Document MemberReference(const ClassInfo& type, const MemberInfo& member, int level = 1);

/// A line for each member under its group's heading.
Document Overview(std::span<const ClassMember> members, int level = 1);

/// What a class is for, and a line for each of its members, settings too.
Document ClassReference(const ClassInfo& type, int level = 1);

Document RecordReference(const RecordInfo& record, int level = 1);
Document EnumerationReference(const EnumerationInfo& enumeration, int level = 1);

/// "Calculator.SimpleLoanCalculator".
std::string FullName(const ClassMember& member);

void Append(Document& document, Document more);

}  // namespace amortix2::cli
