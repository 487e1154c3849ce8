#pragma once

// The risk survey whose answers InvestmentStrategy scores: each question's answers run from the most cautious
// (A, 1) to the boldest (E, 5). A page may ask other questions with answers of the same scale.

#include "amortix2/component/meaning.h"

namespace amortix2::describing {

inline constexpr ChoiceInfo kHorizonAnswers[] = {
    {"A", "Within two years", {}},          {"B", "In two to five years", {}},
    {"C", "In five to ten years", {}},      {"D", "In ten to twenty years", {}},
    {"E", "In more than twenty years", {}},
};
inline constexpr ChoiceInfo kLossAnswers[] = {
    {"A", "Sell everything", {}},   {"B", "Sell a part", {}},          {"C", "Wait", {}},
    {"D", "Buy a little more", {}}, {"E", "Buy as much as I can", {}},
};
inline constexpr ChoiceInfo kAimAnswers[] = {
    {"A", "An income now", {}},
    {"B", "Keeping what I have", {}},
    {"C", "Growth with few surprises", {}},
    {"D", "Growth, with bad years in between", {}},
    {"E", "The most growth, whatever the years bring", {}},
};
inline constexpr ChoiceInfo kReserveAnswers[] = {
    {"A", "None", {}},
    {"B", "Less than two months", {}},
    {"C", "Two to six months", {}},
    {"D", "Six to twelve months", {}},
    {"E", "More than a year", {}},
};
inline constexpr ChoiceInfo kExperienceAnswers[] = {
    {"A", "None", {}},
    {"B", "Savings accounts and deposits", {}},
    {"C", "Funds", {}},
    {"D", "Single stocks and bonds", {}},
    {"E", "Stocks through a crash or two", {}},
};

inline constexpr QuestionInfo kRiskSurvey[] = {
    {"When will you need the money?", kHorizonAnswers},
    {"Your investments lose a fifth within a month. What do you do?", kLossAnswers},
    {"What is the money to bring you?", kAimAnswers},
    {"How many months could you live on other savings?", kReserveAnswers},
    {"What have you invested in so far?", kExperienceAnswers},
};

}  // namespace amortix2::describing
