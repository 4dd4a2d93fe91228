#include "cli/Plot.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <utility>

#include <tsfcore/MV.h>
#include <tsffit/Forecast.h>

#include "cli/Text.h"
#include "cli/TimeTicks.h"
#include "cli/ValueScale.h"

namespace tsx::cli {
namespace {

constexpr double kWidth = 960;
constexpr double kPanelHeight = 420;
constexpr double kLeft = 84;
constexpr double kRight = 28;
constexpr double kTop = 74;
constexpr double kBottom = 46;
constexpr double kPlotWidth = kWidth - kLeft - kRight;
constexpr double kPlotHeight = kPanelHeight - kTop - kBottom;
constexpr std::size_t kCharactersAcross = 115;

constexpr char kStyle[] = R"(  <style>
    text { font-family: "Helvetica Neue", Helvetica, Arial, "Liberation Sans", sans-serif; fill: #3b4252; font-size: 13px; }
    .title { font-size: 19px; font-weight: bold; fill: #1d2433; }
    .subtitle { fill: #697386; }
    .grid { stroke: #e6e9ef; stroke-width: 1; }
    .axis { stroke: #9aa3b2; stroke-width: 1; }
    .end { stroke: #9aa3b2; stroke-width: 1; stroke-dasharray: 3 4; }
    .series { fill: none; stroke: #1f4e79; stroke-width: 1.8; stroke-linejoin: round; stroke-linecap: round; }
    .forecast { fill: none; stroke: #d1602a; stroke-width: 2.2; stroke-linejoin: round; stroke-linecap: round; }
    .limits { fill: #d1602a; fill-opacity: 0.18; stroke: none; }
  </style>
)";

std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

bool IsDrawable(double value) { return value != MV::gMissingValue && std::isfinite(value); }

struct Point {
  double at = 0;  // in cases from the first
  double value = 0;
};

// What one panel shows.
struct Panel {
  const FittedSeries* fitted = nullptr;
  std::size_t case_count = 0;   // of the series
  std::size_t total_count = 0;  // with the forecasts
  std::vector<Point> series;    // missing cases have a missing value
  std::vector<Point> forecast;  // begins at the last value of the series
  std::vector<Point> lower;
  std::vector<Point> upper;
  ValueScale scale;
};

// Lowest and highest of what can be drawn.
struct Extent {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void Add(const std::vector<Point>& points) {
    for (const Point& point : points) {
      if (!IsDrawable(point.value)) continue;
      low = std::min(low, point.value);
      high = std::max(high, point.value);
    }
  }
};

// Limits may widen without end; the panel follows them for one and a half times the height of the
// lines at most, and the rest is cut off.
ValueScale ScaleOf(const Panel& panel) {
  Extent lines;
  lines.Add(panel.series);
  lines.Add(panel.forecast);
  Extent all = lines;
  all.Add(panel.lower);
  all.Add(panel.upper);
  const double room = 1.5 * (lines.high - lines.low);
  const double low = room > 0 ? std::max(all.low, lines.low - room) : all.low;
  const double high = room > 0 ? std::min(all.high, lines.high + room) : all.high;
  return MakeValueScale(low, high, 5);
}

std::vector<Point> SeriesPoints(const Series& series) {
  std::vector<Point> points;
  for (std::size_t i = 0; i < series.values.size(); ++i) {
    points.push_back({static_cast<double>(series.cases[i]), series.values[i]});
  }
  return points;
}

// Forecast values behind the last case, led by the last value of the series.
std::vector<Point> Continued(const Panel& panel, const std::vector<double>& values) {
  std::vector<Point> points;
  if (!panel.series.empty() && IsDrawable(panel.series.back().value)) {
    points.push_back(panel.series.back());
  }
  for (std::size_t h = 0; h < values.size(); ++h) {
    points.push_back({static_cast<double>(panel.case_count + h), values[h]});
  }
  return points;
}

Panel MakePanel(const FittedSeries& fitted, unsigned horizon) {
  const tsffit::Forecasts forecasts = tsffit::Forecast(fitted.model, horizon);
  Panel panel;
  panel.fitted = &fitted;
  panel.case_count = fitted.series->axis->CaseCount();
  panel.total_count = panel.case_count + forecasts.value.size();
  panel.series = SeriesPoints(*fitted.series);
  panel.forecast = Continued(panel, forecasts.value);
  panel.lower = Continued(panel, forecasts.lower);
  panel.upper = Continued(panel, forecasts.upper);
  panel.scale = ScaleOf(panel);
  return panel;
}

// Draws one panel. Coordinates are the panel's own, in pixels from its upper left corner.
class PanelDrawing {
 public:
  PanelDrawing(const Panel& panel, std::size_t index) : panel_(panel), index_(index) {}

  std::string Draw() const {
    const std::string top = Pixels(static_cast<double>(index_) * kPanelHeight);
    return "  <g transform=\"translate(0 " + top + ")\">\n" + Heading() + Legend() + ValueAxis() +
           TimeAxis() + Lines() + "  </g>\n";
  }

 private:
  static std::string Pixels(double value) {
    const std::string text = FixedText(value, 1);
    return text.ends_with(".0") ? text.substr(0, text.size() - 2) : text;
  }

  double X(double at) const {
    const double last = static_cast<double>(std::max<std::size_t>(panel_.total_count, 2) - 1);
    return kLeft + kPlotWidth * at / last;
  }

  // Kept close to the panel, so that values far outside it give numbers that renderers take.
  double Y(double value) const {
    const ValueScale& scale = panel_.scale;
    const double share = value / (scale.high - scale.low) - scale.low / (scale.high - scale.low);
    return kTop + kPlotHeight * (1 - std::clamp(share, -2.0, 3.0));
  }

  std::string At(const Point& point) const {
    return Pixels(X(point.at)) + " " + Pixels(Y(point.value));
  }

  static std::string TextAt(double x, double y, const std::string& attributes,
                            const std::string& text) {
    return "    <text x=\"" + Pixels(x) + "\" y=\"" + Pixels(y) + "\"" + attributes + ">" +
           Escaped(text) + "</text>\n";
  }

  static std::string LineFromTo(const char* type, double x1, double y1, double x2, double y2) {
    return std::string("    <line class=\"") + type + "\" x1=\"" + Pixels(x1) + "\" y1=\"" +
           Pixels(y1) + "\" x2=\"" + Pixels(x2) + "\" y2=\"" + Pixels(y2) + "\"/>\n";
  }

  std::string Heading() const {
    const FittedSeries& fitted = *panel_.fitted;
    const std::string subtitle = fitted.series->variable + ", " + fitted.series->axis->name +
                                 " \xC2\xB7 " + fitted.kind->title;
    return TextAt(kLeft, 30, " class=\"title\"", fitted.series->model_name) +
           TextAt(kLeft, 52, " class=\"subtitle\"", subtitle);
  }

  std::string Legend() const {
    const double right = kWidth - kRight;
    std::string legend = LineFromTo("series", right - 296, 48, right - 272, 48) +
                         TextAt(right - 266, 52, "", "series");
    if (panel_.forecast.empty()) return legend;
    legend += LineFromTo("forecast", right - 210, 48, right - 186, 48) +
              TextAt(right - 180, 52, "", "forecast");
    legend += "    <rect class=\"limits\" x=\"" + Pixels(right - 110) +
              "\" y=\"42\" width=\"24\" height=\"12\"/>\n";
    return legend + TextAt(right - 80, 52, "", "95 % limits");
  }

  std::string ValueAxis() const {
    std::string axis;
    for (const double tick : panel_.scale.Ticks()) {
      axis += LineFromTo("grid", kLeft, Y(tick), kWidth - kRight, Y(tick));
      axis += TextAt(kLeft - 10, Y(tick) + 4.5, " text-anchor=\"end\"", panel_.scale.Label(tick));
    }
    return axis;
  }

  std::string TimeAxis() const {
    const double bottom = kTop + kPlotHeight;
    std::string axis = LineFromTo("axis", kLeft, bottom, kWidth - kRight, bottom);
    const DateAxis& dates = *panel_.fitted->series->axis;
    for (const TimeTick& tick : MakeTimeTicks(dates, panel_.total_count, kCharactersAcross)) {
      const double x = X(static_cast<double>(tick.at));
      axis += LineFromTo("axis", x, bottom, x, bottom + 5);
      axis += TextAt(x, bottom + 22, " text-anchor=\"middle\"", tick.label);
    }
    return axis;
  }

  // Lines through the values; a missing one interrupts them.
  std::string Path(const char* type, const std::vector<Point>& points) const {
    std::string path;
    bool drawing = false;
    for (const Point& point : points) {
      const bool drawable = IsDrawable(point.value);
      // The pen that is put down leaves a dot, so that a lone value shows.
      if (drawable) path += drawing ? "L" + At(point) : "M" + At(point) + "h0";
      drawing = drawable;
    }
    return std::string("      <path class=\"") + type + "\" d=\"" + path + "\"/>\n";
  }

  // The area between the limits.
  std::string Band() const {
    std::string path;
    for (const Point& point : panel_.upper) {
      if (IsDrawable(point.value)) path += (path.empty() ? "M" : "L") + At(point);
    }
    for (auto point = panel_.lower.rbegin(); point != panel_.lower.rend() && !path.empty();
         ++point) {
      if (IsDrawable(point->value)) path += "L" + At(*point);
    }
    return path.empty() ? "" : "      <path class=\"limits\" d=\"" + path + "Z\"/>\n";
  }

  std::string Lines() const {
    const std::string clip = "plot" + std::to_string(index_ + 1);
    std::string lines = "    <clipPath id=\"" + clip + "\"><rect x=\"" + Pixels(kLeft) + "\" y=\"" +
                        Pixels(kTop) + "\" width=\"" + Pixels(kPlotWidth) + "\" height=\"" +
                        Pixels(kPlotHeight) + "\"/></clipPath>\n";
    const double end = X(static_cast<double>(panel_.case_count) - 1);
    if (panel_.total_count > panel_.case_count) {
      lines += LineFromTo("end", end, kTop, end, kTop + kPlotHeight);
    }
    lines += "    <g clip-path=\"url(#" + clip + ")\">\n" + Band() + Path("series", panel_.series);
    if (!panel_.forecast.empty()) lines += Path("forecast", panel_.forecast);
    return lines + "    </g>\n";
  }

  const Panel& panel_;
  std::size_t index_;
};

}  // namespace

std::string PlotText(const std::vector<FittedSeries>& fitted, unsigned horizon) {
  std::vector<Panel> panels;
  for (const FittedSeries& one : fitted) {
    if (one.kind != nullptr && panels.size() < kMostPanels) {
      panels.push_back(MakePanel(one, horizon));
    }
  }
  const std::string width = NumberText(kWidth);
  const std::string height = NumberText(kPanelHeight * static_cast<double>(panels.size()));
  std::string svg = R"(<?xml version="1.0" encoding="UTF-8"?>)"
                    "\n<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
                    width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + " " + height +
                    "\">\n" + kStyle + "  <rect width=\"" + width + "\" height=\"" + height +
                    "\" fill=\"#ffffff\"/>\n";
  for (std::size_t i = 0; i < panels.size(); ++i) svg += PanelDrawing(panels[i], i).Draw();
  return svg + "</svg>\n";
}

}  // namespace tsx::cli
