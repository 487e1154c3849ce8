#include "amortix2/com/result_code.h"

#include <new>

#include "amortix2/com/com_pointer.h"
#include "amortix2/com/text.h"

namespace amortix2::com {
namespace {

/// A failure in the platform's terms. Texts that no memory is left for stay null; callers then show their
/// own.
class Report {
 public:
  Report() = default;
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;
  ~Report() {
    SysFreeString(source_);
    SysFreeString(description_);
  }

  /// Of the exception that is being handled.
  void Fill(const ErrorOrigin& origin) noexcept {
    code_ = CurrentResultCode();
    if (code_ == ResultCode(ErrorNumber::OutOfMemory)) return;
    try {
      try {
        throw;
      } catch (const ForeignError& error) {
        source_ = MakeBstr(error.Source());
        description_ = MakeBstr(error.Description());
      } catch (const ArgumentError& error) {
        source_ = MakeBstr(origin.programId);
        description_ = MakeBstr(std::string(error.Parameter().name) + ": " +
                                std::string(ErrorDescription(error.Number())));
      } catch (...) {
        source_ = MakeBstr(origin.programId);
        description_ = MakeBstr(ErrorDescription(CurrentErrorNumber()));
      }
    } catch (...) {
      // No text then: the code says it.
    }
  }

  void StoreOnThread(const ErrorOrigin& origin) const noexcept {
    ComPointer<ICreateErrorInfo> info;
    if (description_ == nullptr || FAILED(CreateErrorInfo(info.Receive()))) {
      SetErrorInfo(0, nullptr);
      return;
    }
    info->SetGUID(origin.interfaceId);
    info->SetSource(source_);
    info->SetDescription(description_);
    SetErrorInfo(0, info.As<IErrorInfo>(IID_IErrorInfo).Get());
  }

  HRESULT MoveTo(EXCEPINFO* details) noexcept {
    if (details == nullptr) return code_;
    *details = {};
    details->scode = code_;
    details->bstrSource = std::exchange(source_, nullptr);
    details->bstrDescription = std::exchange(description_, nullptr);
    return DISP_E_EXCEPTION;
  }

 private:
  HRESULT code_ = ResultCode(ErrorNumber::InternalError);
  BSTR source_ = nullptr;
  BSTR description_ = nullptr;
};

}  // namespace

void Check(HRESULT result) {
  if (result == E_OUTOFMEMORY) throw std::bad_alloc();
  if (FAILED(result)) throw ForeignError(result);
}

HRESULT CurrentResultCode() noexcept {
  try {
    throw;
  } catch (const ForeignError& error) {
    return error.Code();
  } catch (...) {
    return ResultCode(CurrentErrorNumber());
  }
}

HRESULT ReportCurrentFailure(const ErrorOrigin& origin, EXCEPINFO* details) noexcept {
  Report report;
  report.Fill(origin);
  report.StoreOnThread(origin);
  return report.MoveTo(details);
}

}  // namespace amortix2::com
