#ifndef TSFFIT_DISPATCH_WITHSTATE_H_
#define TSFFIT_DISPATCH_WITHSTATE_H_

#include <tsfcore/ForecastStateVisitor.h>
#include <tsfcore/TSFModel.h>

namespace tsffit {

// Calls `f` with whatever state it visits: an overload, or one lambda, for each class.
template <class F>
class StateVisitor final : public ForecastStateVisitor {
 public:
  explicit StateVisitor(F& f) : f_(f) {}

  void Visit(const ESForecastState& state) override { f_(state); }
  void Visit(const ARMACLSForecastState& state) override { f_(state); }
  void Visit(const ARMAMLForecastState& state) override { f_(state); }
  void Visit(const ARMAMLSpForecastState& state) override { f_(state); }

 private:
  F& f_;
};

// The door through which everything goes that is done with a fitted model: calls `f` with the
// model's forecast state as the class that it is. Not at all when there is none.
template <class F>
void WithState(const TSFModel& model, F&& f) {
  const ForecastState* state = model.IsEmpty() ? nullptr : model.GetImp()->GetForecastState();
  if (state == nullptr) return;
  StateVisitor visitor(f);
  state->Accept(visitor);
}

}  // namespace tsffit

#endif  // TSFFIT_DISPATCH_WITHSTATE_H_
