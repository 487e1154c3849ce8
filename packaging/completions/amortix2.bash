# bash completion for amortix2
# Made by ./dev renew from the component's description; change that.

_amortix2_targets='loan Calculator.SimpleLoanCalculator balloon Calculator.BalloonLoanPaymentCalculator lease Calculator.MonthlyLeaseCalculator lease-frequency Calculator.SimpleLeaseCalculator fixed Calculator.FixedPayment adjustable Calculator.AdjustablePayment afford Calculator.HomeAffordabilityCalculator qualify Calculator.MortgageQualificationCalculator grid Calculator.PaymentGridCalculator refinance Calculator.RefinancingCalculator prepay Calculator.PrePayCalculator payoff Calculator.FastPrePayCalculator biweekly Calculator.BiWeeklyComparison points Calculator.PointsAdvisor arm Calculator.ARMComparison consolidate Calculator.LoanConsolidationCalculator rent-or-buy Calculator.RentVsBuyComparison save Calculator.AmountSavedCalculator deposit Calculator.DepositCalculator starting-balance Calculator.StartingAmountCalculator savings-rate Calculator.SavingsRateCalculator savings Calculator.SimpleSavingsCalculator future-value Calculator.FutureValueCalculator present-value Calculator.PresentValueCalculator yield Calculator.YieldCalculator retirement Calculator.IRACalculator spend Calculator.SpendingCalculator records Calculator.Amortix loan-table Calculator.LoadDetArray savings-table Calculator.LoadSaveDetArray bar-chart BarChart.MakeChart stack-chart BarChart.StackChart BarChart.SetGraphDimensions BarChart.SetAxisGif BarChart.SetSpaceGif BarChart.AxisRange line-chart GifChart.LineChart GifChart.SetGraphDimensions gif-file GifChart.writeGifFile GifChart.DumpAFile GifChart.OnStartPage GifChart.AxisRange svg-bar-chart SvgChart.MakeChart svg-stack-chart SvgChart.StackChart svg-line-chart SvgChart.LineChart SvgChart.AxisRange data-table SvgChart.DataTable alternative-text SvgChart.AlternativeText SvgChart.SetGraphDimensions SvgChart.SetAxisGif SvgChart.SetSpaceGif invest InvestmentStrategy.AssetAllocation'
_amortix2_types=' Calculator BarChart GifChart InvestmentStrategy SvgChart tSchedule tLoanDesc tSavingsDesc tGoalDesc tCreditQualification GifHeader ImageBlock specialConstants enumAmortixType enumLoanType enumSavingsType enumFrequencyType'
_amortix2_inputs() {
  case $1 in
    loan|Calculator.SimpleLoanCalculator) printf '%s\n' 'vLoanType=S C' 'vPurchaseAmt=' 'vPayment=' 'vPeriod=' 'vIntRate=' ;;
    balloon|Calculator.BalloonLoanPaymentCalculator) printf '%s\n' 'vPurchaseAmt=' 'vDownPayment=' 'vStartDate=' 'vPeriod=' 'vBalloonAtPeriod=' 'vIntRate=' ;;
    lease|Calculator.MonthlyLeaseCalculator) printf '%s\n' 'vPrincipal=' 'vPayment=' 'vPeriod=' 'vIntRate=' 'vPrepays=' 'vEndingBal=' 'vStartDate=' ;;
    lease-frequency|Calculator.SimpleLeaseCalculator) printf '%s\n' 'vPrincipal=' 'vPayment=' 'vPeriod=' 'vIntRate=' 'vPrepays=' 'vEndingBal=' 'vStartDate=' 'vPayMode=daily weekly biweeklyMode monthly bimonthlyMode quarterly semiannualMode yearly exactDaysMode continuousMode' 'vIntMode=daily weekly biweeklyMode monthly bimonthlyMode quarterly semiannualMode yearly exactDaysMode continuousMode' ;;
    fixed|Calculator.FixedPayment) printf '%s\n' 'vPurchaseAmt=' 'vDownPayment=' 'vPeriod=' 'vIntRate=' 'vCloseDate=' 'vPayDate=' ;;
    adjustable|Calculator.AdjustablePayment) printf '%s\n' 'vPurchaseAmt=' 'vDownPayment=' 'vPeriod=' 'vIntRate=' 'vCloseDate=' 'vPayDate=' 'vRateCap=' 'vRateInc1=' 'vRateInc2=' 'vIncDelay1=' 'vIncDelay2=' ;;
    afford|Calculator.HomeAffordabilityCalculator) printf '%s\n' 'vPayment=' 'vPropertyTax=' 'vInsurance=' 'vDues=' 'vDownPayment=' 'vPeriod=' 'vIntRate=' ;;
    qualify|Calculator.MortgageQualificationCalculator) printf '%s\n' 'vAnnualIncome=' 'vCreditCard=' 'vCarPayments=' 'vChildSupport=' 'vOtherMonthly=' 'vPropertyTax=' 'vInsurance=' 'vDues=' 'vDownPayment=' 'vPeriod=' 'vIntRate=' ;;
    grid|Calculator.PaymentGridCalculator) printf '%s\n' 'vPrincipal=' 'vDownPayment=' 'vIntRate=' 'vPeriod=' 'vDownChange=' 'vRateChange=' 'vStepX=' 'vStepY=' ;;
    refinance|Calculator.RefinancingCalculator) printf '%s\n' 'vCurrBal=' 'vCurrPay=' 'vCurrRate=' 'vNewRate=' 'vNewPoints=' 'vNewFees=' 'vNewTerm=' 'vIncTaxRate=' 'vInvGrowthRate=' 'vSellByDate=' ;;
    prepay|Calculator.PrePayCalculator) printf '%s\n' 'vCurrBal=' 'vCurrPay=' 'vCurrRate=' 'vExtraPayment=' 'vIncTaxRate=' 'vInvGrowthRate=' 'vSellByDate=' ;;
    payoff|Calculator.FastPrePayCalculator) printf '%s\n' 'currBal=' 'currPay=' 'currRate=' 'targetPeriod=' 'taxRate=' 'invRate=' 'keep=' ;;
    biweekly|Calculator.BiWeeklyComparison) printf '%s\n' 'vCurrBal=' 'vCurrPay=' 'vCurrRate=' 'vPaymentDate=' 'vNewFees=' 'vSwitchDate=' 'vIncTaxRate=' 'vInvGrowthRate=' 'vSellByDate=' ;;
    points|Calculator.PointsAdvisor) printf '%s\n' 'vPurchaseAmt=' 'vIncTaxRate=' 'vSellByDate=' 'vDownpayment1=' 'vPeriod1=' 'vIntRate1=' 'vPoints1=' 'vFees1=' 'vDownpayment2=' 'vPeriod2=' 'vIntRate2=' 'vPoints2=' 'vFees2=' ;;
    arm|Calculator.ARMComparison) printf '%s\n' 'vPurchaseAmt=' 'vIncTaxRate=' 'vSellByDate=' 'vDownpayment1=' 'vPeriod1=' 'vIntRate1=' 'vPoints1=' 'vFees1=' 'vRateInc1=' 'vIncDelay1=' 'vRateCap1=' 'vDownpayment2=' 'vPeriod2=' 'vIntRate2=' 'vPoints2=' 'vFees2=' 'vRateInc2=' 'vIncDelay2=' 'vRateCap2=' ;;
    consolidate|Calculator.LoanConsolidationCalculator) printf '%s\n' 'vCurrBal=' 'vCurrPay=' 'vCurrRate=' 'vNewRate=' 'vNewPoints=' 'vNewFees=' 'vNewTerm=' 'vIncTaxRate=' 'vInvGrowthRate=' 'vSellByDate=' ;;
    rent-or-buy|Calculator.RentVsBuyComparison) printf '%s\n' 'vRent=' 'vRentInc=' 'vRentInsurance=' 'vPurchaseAmt=' 'vDownPayment=' 'vPeriod=' 'vIntRate=' 'vPoints=' 'vFees=' 'vPropertyTax=' 'vInsurance=' 'vDues=' 'vMaintenance=' 'vHomeGrowthRate=' 'vSellCost=' 'vIncTaxRate=' 'vInvGrowthRate=' 'vSellByDate=' ;;
    save|Calculator.AmountSavedCalculator) printf '%s\n' 'vStartDate=' 'vCurrBal=' 'vPayment=' 'vFreq=daily weekly biweeklyMode monthly bimonthlyMode quarterly semiannualMode yearly exactDaysMode continuousMode' 'vPeriod=' 'vIntRate=' ;;
    deposit|Calculator.DepositCalculator) printf '%s\n' 'vStartDate=' 'vCurrBal=' 'vFreq=daily weekly biweeklyMode monthly bimonthlyMode quarterly semiannualMode yearly exactDaysMode continuousMode' 'vPeriod=' 'vIntRate=' 'vEndingBal=' ;;
    starting-balance|Calculator.StartingAmountCalculator) printf '%s\n' 'vStartDate=' 'vPayment=' 'vFreq=daily weekly biweeklyMode monthly bimonthlyMode quarterly semiannualMode yearly exactDaysMode continuousMode' 'vPeriod=' 'vIntRate=' 'vEndingBal=' ;;
    savings-rate|Calculator.SavingsRateCalculator) printf '%s\n' 'vStartDate=' 'vCurrBal=' 'vPayment=' 'vFreq=daily weekly biweeklyMode monthly bimonthlyMode quarterly semiannualMode yearly exactDaysMode continuousMode' 'vPeriod=' 'vEndingBal=' ;;
    savings|Calculator.SimpleSavingsCalculator) printf '%s\n' 'vStartDate=' 'vCurrBal=' 'vPayment=' 'vFreq=daily weekly biweeklyMode monthly bimonthlyMode quarterly semiannualMode yearly exactDaysMode continuousMode' 'vEndingBal=' 'vPeriod=' 'vIntRate=' 'vIncTaxRate=' ;;
    future-value|Calculator.FutureValueCalculator) printf '%s\n' 'vStartDate=' 'vEndingDate=' 'vCurrBal=' 'vIntRate=' 'vFreq=daily weekly biweeklyMode monthly bimonthlyMode quarterly semiannualMode yearly exactDaysMode continuousMode' ;;
    present-value|Calculator.PresentValueCalculator) printf '%s\n' 'vStartDate=' 'vEndingDate=' 'vEndingBal=' 'vIntRate=' 'vFreq=daily weekly biweeklyMode monthly bimonthlyMode quarterly semiannualMode yearly exactDaysMode continuousMode' ;;
    yield|Calculator.YieldCalculator) printf '%s\n' 'vStartDate=' 'vEndingDate=' 'vCurrBal=' 'vEndingBal=' 'vFreq=daily weekly biweeklyMode monthly bimonthlyMode quarterly semiannualMode yearly exactDaysMode continuousMode' ;;
    retirement|Calculator.IRACalculator) printf '%s\n' 'vStartDate=' 'vTyp=T N' 'vCurrBal=' 'vPayment=' 'vEndingBal=' 'vPeriod=' 'vIntRate=' 'vIncTaxRate=' ;;
    spend|Calculator.SpendingCalculator) printf '%s\n' 'vStartDate=' 'vCurrBal=' 'vPayment=' 'vIntRate=' 'vFreq=daily weekly biweeklyMode monthly bimonthlyMode quarterly semiannualMode yearly exactDaysMode continuousMode' 'vPeriod=' ;;
    records|Calculator.Amortix) printf '%s\n' 'AmortixType=LoanQualification LoanAffordability LoanConsolidation LoanCalculator savings SavingsGoalsCalculator LoanQuickCalc' 'LoanArray=' 'SavingArray=' 'GoalArray=' 'Qualification=' ;;
    loan-table|Calculator.LoadDetArray) printf '%s\n' 'loan=' 'atCol=' 'lastRow=' 'detArray=' ;;
    savings-table|Calculator.LoadSaveDetArray) printf '%s\n' 'save=' 'atCol=' 'lastRow=' 'detArray=' ;;
    bar-chart|BarChart.MakeChart) printf '%s\n' 'vColDat=' 'blnk=' 'Colgif=' 'Colleg=' 'Ttl=' 'Xaxis=' 'Yaxis=' 'typ=PL OL OV OR ST SR LINE HZ HR' ;;
    stack-chart|BarChart.StackChart) printf '%s\n' 'vColDat=' 'blnk=' 'Colgif=' 'Colleg=' 'Ttl=' 'Xaxis=' 'Yaxis=' ;;
    BarChart.SetGraphDimensions) printf '%s\n' 'height=' 'width=' ;;
    BarChart.SetAxisGif) printf '%s\n' 'v=' ;;
    BarChart.SetSpaceGif) printf '%s\n' 'v=' ;;
    BarChart.AxisRange) printf '%s\n' 'vColDat=' 'typ=PL OL OV OR ST SR LINE HZ HR' ;;
    line-chart|GifChart.LineChart) printf '%s\n' 'vColDat=' 'vPal=' ;;
    GifChart.SetGraphDimensions) printf '%s\n' 'height=' 'width=' ;;
    gif-file|GifChart.writeGifFile) printf '%s\n' 'nm=' 'vImg=' 'vPal=' ;;
    GifChart.DumpAFile) printf '%s\n' 'x=' ;;
    GifChart.OnStartPage) printf '%s\n' 'iScriptingContext=' ;;
    GifChart.AxisRange) printf '%s\n' 'vColDat=' ;;
    svg-bar-chart|SvgChart.MakeChart) printf '%s\n' 'vColDat=' 'Colgif=' 'Colleg=' 'Ttl=' 'Xaxis=' 'Yaxis=' 'typ=PL OL OV OR ST SR LINE HZ HR' ;;
    svg-stack-chart|SvgChart.StackChart) printf '%s\n' 'vColDat=' 'Colgif=' 'Colleg=' 'Ttl=' 'Xaxis=' 'Yaxis=' ;;
    svg-line-chart|SvgChart.LineChart) printf '%s\n' 'vColDat=' 'vPal=' ;;
    SvgChart.AxisRange) printf '%s\n' 'vColDat=' 'typ=PL OL OV OR ST SR LINE HZ HR' ;;
    data-table|SvgChart.DataTable) printf '%s\n' 'vColDat=' 'Colleg=' 'Ttl=' ;;
    alternative-text|SvgChart.AlternativeText) printf '%s\n' 'vColDat=' 'Colleg=' 'Ttl=' ;;
    SvgChart.SetGraphDimensions) printf '%s\n' 'height=' 'width=' ;;
    invest|InvestmentStrategy.AssetAllocation) printf '%s\n' 'vInvAmount=' 'vSurvey=' ;;
  esac
}

_amortix2() {
  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]} command=${COMP_WORDS[1]} target=${COMP_WORDS[2]}
  local name='' line
  # A "=" is a word of its own here.
  if [[ $cur == = ]]; then name=$prev cur=''
  elif [[ $prev == = ]]; then name=${COMP_WORDS[COMP_CWORD-2]}
  fi
  COMPREPLY=()
  if ((COMP_CWORD == 1)); then
    COMPREPLY=($(compgen -W 'list call batch serve rows --help --version' -- "$cur"))
  elif [[ $command == list ]]; then
    COMPREPLY=($(compgen -W "$_amortix2_targets $_amortix2_types --json" -- "$cur"))
  elif [[ $command == batch ]]; then
    COMPREPLY=($(compgen -W '--help --types --notes --strangers --today' -- "$cur"))
  elif [[ $command == serve ]]; then
    COMPREPLY=($(compgen -W '--help --listen --threads --header-bytes --body-bytes --request-time --write-time --idle-time --connections --unsent-bytes --log --today' -- "$cur"))
  elif [[ $command == call || $command == rows ]] && ((COMP_CWORD == 2)) && [[ $cur != -* ]]; then
    COMPREPLY=($(compgen -W "$_amortix2_targets" -- "$cur"))
  elif [[ $prev == --out || $prev == --merge ]]; then
    COMPREPLY=($(compgen -f -- "$cur"))
  elif [[ $command == rows && $cur == -* ]]; then
    COMPREPLY=($(compgen -W '--help --only --drop --from --to --threads --sum --by --merge --today' -- "$cur"))
  elif [[ $cur == -* ]]; then
    COMPREPLY=($(compgen -W '--with --json --types --only --csv --out --today --help' -- "$cur"))
  else
    while IFS= read -r line; do
      if [[ -n $name ]]; then
        [[ ${line%%=*} == "$name" ]] && COMPREPLY=($(compgen -W "${line#*=}" -- "$cur"))
      elif [[ ${line%%=*}= == "$cur"* ]]; then
        COMPREPLY+=("${line%%=*}=")
      fi
    done < <(_amortix2_inputs "$target")
    [[ -z $name ]] && compopt -o nospace 2>/dev/null
  fi
  return 0
}
complete -F _amortix2 amortix2
