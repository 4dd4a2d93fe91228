#include "models/Classes.h"

#include <algorithm>
#include <stdexcept>

#include "models/Croston.h"
#include "models/Smoothing.h"
#include "models/arima/Arima.h"

namespace tsx::models {
namespace {

constinit const SmoothingClass kSmoothing;
constinit const CrostonClass kCroston;
constinit const ArimaClass kArima;

constexpr const ModelClass* kClasses[] = {&kSmoothing, &kCroston, &kArima};

bool IsOf(const ModelClass& one, const KindInfo& kind) {
  const std::span<const KindInfo> kinds = one.Kinds();
  return std::any_of(kinds.begin(), kinds.end(), [&](const KindInfo& k) { return &k == &kind; });
}

}  // namespace

std::span<const ModelClass* const> Classes() { return kClasses; }

const ModelClass& ClassOf(const KindInfo& kind) {
  for (const ModelClass* one : kClasses) {
    if (IsOf(*one, kind)) return *one;
  }
  throw std::logic_error("internal error: a kind of no class");
}

const KindInfo* FindKind(std::string_view name) {
  if (name.empty()) return nullptr;
  for (const ModelClass* one : kClasses) {
    for (const KindInfo& kind : one->Kinds()) {
      if (kind.name == name) return &kind;
    }
  }
  return nullptr;
}

std::string SeasonalPart(const ModelRequest& request) {
  if (request.kind == nullptr) return "";
  return ClassOf(*request.kind).SeasonalPart(*request.kind, request);
}

std::optional<Claim> FindClaim(const Series& series) {
  for (const ModelClass* one : kClasses) {
    if (std::optional<Claim> claim = one->FindClaim(series)) return claim;
  }
  return std::nullopt;
}

}  // namespace tsx::models
