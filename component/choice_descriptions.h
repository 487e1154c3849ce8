#pragma once

// The choices of parameters that take a code, a letter or a flag, each list once.

#include "amortix2/component/record_descriptions.h"

namespace amortix2::describing {

/// All frequencies but "the same as the other", which is of no use where there is no other.
inline constexpr ChoicesInfo kFrequencies{
    .title = "Frequency",
    .choices = kChoicesOf<enumFrequencyType>.choices.subspan(1),
    .otherwise = "once a year",
    .enumeration = &kEnumerationInfo<enumFrequencyType>,
};

inline constexpr ChoiceInfo kNoOrYes[] = {{"0", "No", "Off"}, {"1", "Yes", "On, as any other number"}};
inline constexpr ChoicesInfo kFlag{
    .title = "No or yes", .choices = kNoOrYes, .otherwise = "yes", .enumeration = nullptr};

inline constexpr ChoiceInfo kLoanKinds[] = {
    {"S", "Loan", "Payments at the end of each month"},
    {"C", "Credit card", "Payments in the middle of the month"},
};
inline constexpr ChoicesInfo kLoanKind{.title = "Kind of loan",
                                       .choices = kLoanKinds,
                                       .otherwise = "a loan",
                                       .enumeration = nullptr,
                                       .anyCase = true};

inline constexpr ChoiceInfo kAccountKinds[] = {
    {"T", "Taxed on withdrawal", "Income tax is due on what is taken out at the end"},
    {"N", "Not taxed on withdrawal", "What is taken out is free of income tax"},
};
inline constexpr ChoicesInfo kAccountKind{.title = "Kind of account",
                                          .choices = kAccountKinds,
                                          .otherwise = "not taxed on withdrawal",
                                          .enumeration = nullptr};

inline constexpr ChoiceInfo kBarStyles[] = {
    {"PL", "Plain columns", "The bars of a group side by side"},
    {"OL", "Overlapped columns with lines", "From two series on"},
    {"OV", "Overlapped columns", "From two series on"},
    {"OR", "Overlapped columns (second name)", "The same as OV"},
    {"ST", "Stacked columns", "The series of a group on top of each other"},
    {"SR", "Stacked columns, last series first", "Turns the caller's images, names and series round"},
    {"LINE", "Lines", "Negative values are kept"},
    {"HZ", "Horizontal bars", "A row for each group"},
    {"HR", "Horizontal bars, last group first", "As HZ from the bottom up"},
};
inline constexpr ChoicesInfo kBarStyle{
    .title = "Style", .choices = kBarStyles, .otherwise = "plain columns", .enumeration = nullptr};

inline constexpr ChoiceInfo kLabelModes[] = {
    {"0", "Ends and zero", "As any other number"},
    {"3", "Ends, zero and the middle", "One value more"},
    {"11", "All", "A value at each line of the grid"},
};
inline constexpr ChoicesInfo kLabelMode{.title = "Labelled axis values",
                                        .choices = kLabelModes,
                                        .otherwise = "ends and zero",
                                        .enumeration = nullptr};

}  // namespace amortix2::describing
