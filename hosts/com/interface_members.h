// Made from the component's description; change that, and make this text anew.

#pragma once

#include <amortix2.h>

#include <tuple>

#include "amortix2/com/dual_interface.h"

namespace amortix2::com {

/// The members of each interface in the order of its vtable, as widl declares them.
// clang-format off
using InterfaceMembers = std::tuple<
    MemberList<
        &::_Calculator::Amortix,
        &::_Calculator::LoadDetArray,
        &::_Calculator::SimpleLoanCalculator,
        &::_Calculator::FixedPayment,
        &::_Calculator::AdjustablePayment,
        &::_Calculator::BalloonLoanPaymentCalculator,
        &::_Calculator::MonthlyLeaseCalculator,
        &::_Calculator::SimpleLeaseCalculator,
        &::_Calculator::HomeAffordabilityCalculator,
        &::_Calculator::MortgageQualificationCalculator,
        &::_Calculator::PaymentGridCalculator,
        &::_Calculator::RefinancingCalculator,
        &::_Calculator::PrePayCalculator,
        &::_Calculator::FastPrePayCalculator,
        &::_Calculator::BiWeeklyComparison,
        &::_Calculator::PointsAdvisor,
        &::_Calculator::ARMComparison,
        &::_Calculator::AmountSavedCalculator,
        &::_Calculator::SavingsRateCalculator,
        &::_Calculator::StartingAmountCalculator,
        &::_Calculator::DepositCalculator,
        &::_Calculator::PresentValueCalculator,
        &::_Calculator::FutureValueCalculator,
        &::_Calculator::YieldCalculator,
        &::_Calculator::SimpleSavingsCalculator,
        &::_Calculator::IRACalculator,
        &::_Calculator::SpendingCalculator,
        &::_Calculator::LoadSaveDetArray,
        &::_Calculator::LoanConsolidationCalculator,
        &::_Calculator::RentVsBuyComparison>,
    MemberList<
        &::_BarChart::StackChart,
        &::_BarChart::MakeChart,
        &::_BarChart::SetGraphDimensions,
        &::_BarChart::SetAxisGif,
        &::_BarChart::SetSpaceGif,
        &::_BarChart::put_MinimumColumnWidth,
        &::_BarChart::put_MaximumColumnWidth,
        &::_BarChart::put_MinimumOverlapSpace,
        &::_BarChart::put_MinimumOverlapCount,
        &::_BarChart::put_TotalGraphFrameWidth,
        &::_BarChart::put_UseStyleSheets,
        &::_BarChart::put_NegativeBars,
        &::_BarChart::put_SupressLegend,
        &::_BarChart::put_YLabelMode,
        &::_BarChart::put_AltFormatStr,
        &::_BarChart::put_YLableFormatStr,
        &::_BarChart::put_AltLabelWithLegend,
        &::_BarChart::AxisRange>,
    MemberList<
        &::_GifChart::OnStartPage,
        &::_GifChart::writeGifFile,
        &::_GifChart::DumpAFile,
        &::_GifChart::LineChart,
        &::_GifChart::SetGraphDimensions,
        &::_GifChart::AxisRange>,
    MemberList<
        &::_InvestmentStrategy::AssetAllocation>,
    MemberList<
        &::_SvgChart::StackChart,
        &::_SvgChart::MakeChart,
        &::_SvgChart::LineChart,
        &::_SvgChart::AxisRange,
        &::_SvgChart::DataTable,
        &::_SvgChart::AlternativeText,
        &::_SvgChart::SetGraphDimensions,
        &::_SvgChart::SetAxisGif,
        &::_SvgChart::SetSpaceGif,
        &::_SvgChart::put_MinimumColumnWidth,
        &::_SvgChart::put_MaximumColumnWidth,
        &::_SvgChart::put_MinimumOverlapSpace,
        &::_SvgChart::put_MinimumOverlapCount,
        &::_SvgChart::put_TotalGraphFrameWidth,
        &::_SvgChart::put_UseStyleSheets,
        &::_SvgChart::put_NegativeBars,
        &::_SvgChart::put_SupressLegend,
        &::_SvgChart::put_YLabelMode,
        &::_SvgChart::put_AltFormatStr,
        &::_SvgChart::put_YLableFormatStr,
        &::_SvgChart::put_AltLabelWithLegend,
        &::_SvgChart::put_Title,
        &::_SvgChart::put_Caption,
        &::_SvgChart::put_XAxisTitle,
        &::_SvgChart::put_YAxisTitle,
        &::_SvgChart::put_SeriesNames,
        &::_SvgChart::put_RowAxisKind,
        &::_SvgChart::put_LegendPosition,
        &::_SvgChart::put_ValueLabelMode,
        &::_SvgChart::put_AxisFromData,
        &::_SvgChart::put_LineMarkers,
        &::_SvgChart::put_LineDashes>>;
// clang-format on

}  // namespace amortix2::com
