#include "report/Plot.h"

#include <algorithm>

#include "report/PlotPanel.h"
#include "report/Svg.h"
#include "report/TimeTicks.h"

namespace tsx::report {
namespace {

constexpr double kWidth = 960;
constexpr double kPanelHeight = 420;
constexpr double kLeft = 84;
constexpr double kRight = kWidth - 28;
constexpr double kTop = 74;
constexpr double kBottom = kPanelHeight - 46;
constexpr std::size_t kCharactersAcross = 115;

constexpr char kStyle[] = R"(<style>
text { font-family: "Helvetica Neue", Helvetica, Arial, "Liberation Sans", sans-serif; }
text { fill: #3b4252; font-size: 13px; }
.title { font-size: 19px; font-weight: bold; fill: #1d2433; }
.subtitle { fill: #697386; }
.value { text-anchor: end; }
.time { text-anchor: middle; }
.grid { stroke: #e6e9ef; }
.axis { stroke: #9aa3b2; }
.end { stroke: #9aa3b2; stroke-dasharray: 3 4; }
.series, .forecast { fill: none; stroke-linejoin: round; stroke-linecap: round; }
.series { stroke: #1f4e79; stroke-width: 1.8; }
.forecast { stroke: #d1602a; stroke-width: 2.2; }
.limits { fill: #d1602a; fill-opacity: 0.18; }
</style>
)";

std::string TextAt(double x, double y, std::string_view type, std::string_view text) {
  return SvgElement("text").With("class", type).With("x", x).With("y", y).Holding(text).Text();
}

std::string LineFromTo(std::string_view type, double x1, double y1, double x2, double y2) {
  return SvgElement("line")
      .With("class", type)
      .With("x1", x1)
      .With("y1", y1)
      .With("x2", x2)
      .With("y2", y2)
      .Text();
}

std::string Rectangle(double x, double y, double width, double height, std::string_view type) {
  return SvgElement("rect")
      .With("class", type)
      .With("x", x)
      .With("y", y)
      .With("width", width)
      .With("height", height)
      .Text();
}

std::string Path(std::string_view type, const std::string& commands) {
  return SvgElement("path").With("class", type).With("d", commands).Text();
}

std::string Legend() {
  constexpr double kLine = 48;
  constexpr double kText = 52;
  return LineFromTo("series", kRight - 296, kLine, kRight - 272, kLine) +
         TextAt(kRight - 266, kText, "key", "series") +
         LineFromTo("forecast", kRight - 210, kLine, kRight - 186, kLine) +
         TextAt(kRight - 180, kText, "key", "forecast") +
         Rectangle(kRight - 110, kLine - 6, 24, 12, "limits") +
         TextAt(kRight - 80, kText, "key", "95 % limits");
}

std::string Heading(const models::SeriesFit& fit) {
  constexpr char kDot[] = " \xC2\xB7 ";
  const models::Series& series = *fit.series;
  return TextAt(kLeft, 30, "title", series.model_name) +
         TextAt(kLeft, 52, "subtitle",
                series.variable + ", " + series.axis->name + kDot + fit.model->Describe().title);
}

// Draws one panel. Coordinates count from its upper left corner.
class PanelDrawing {
 public:
  explicit PanelDrawing(const PlotPanel& panel) : panel_(panel) {}

  std::string Draw(std::size_t index) const {
    const std::string top = Pixels(static_cast<double>(index) * kPanelHeight);
    const std::string clip = "plot" + std::to_string(index + 1);
    return "<g transform=\"translate(0 " + top + ")\">\n" + Heading(*panel_.fit) + Legend() +
           ValueAxis() + TimeAxis() + EndOfSeries() + ClipPath(clip) + "<g clip-path=\"url(#" +
           clip + ")\">\n" + Band() + Line("series", panel_.series) +
           Line("forecast", panel_.forecast) + "</g>\n</g>\n";
  }

 private:
  double X(double at) const {
    const std::size_t last = std::max<std::size_t>(panel_.total_count, 2) - 1;
    return kLeft + (kRight - kLeft) * at / static_cast<double>(last);
  }

  // Kept close to the panel, so that values far outside it give numbers that renderers take.
  double Y(double value) const {
    const double height = panel_.scale.high - panel_.scale.low;
    const double share = value / height - panel_.scale.low / height;
    return kBottom - (kBottom - kTop) * std::clamp(share, -2.0, 3.0);
  }

  std::string At(const PlotPoint& point) const {
    return Pixels(X(point.at)) + " " + Pixels(Y(point.value));
  }

  std::string ValueAxis() const {
    std::string axis;
    for (const double tick : panel_.scale.Ticks()) {
      axis += LineFromTo("grid", kLeft, Y(tick), kRight, Y(tick));
      axis += TextAt(kLeft - 10, Y(tick) + 4.5, "value", panel_.scale.Label(tick));
    }
    return axis;
  }

  std::string TimeAxis() const {
    const tsxtimes::DateAxis& dates = *panel_.fit->series->axis;
    std::string axis = LineFromTo("axis", kLeft, kBottom, kRight, kBottom);
    for (const TimeTick& tick : MakeTimeTicks(dates, panel_.total_count, kCharactersAcross)) {
      const double x = X(static_cast<double>(tick.at));
      axis += LineFromTo("axis", x, kBottom, x, kBottom + 5);
      axis += TextAt(x, kBottom + 22, "time", tick.label);
    }
    return axis;
  }

  std::string EndOfSeries() const {
    const double x = X(static_cast<double>(panel_.case_count) - 1);
    return LineFromTo("end", x, kTop, x, kBottom);
  }

  // What lies above or below the panel is cut off; at the sides there is room for the pen.
  static std::string ClipPath(const std::string& name) {
    return "<clipPath id=\"" + name + "\">" +
           Rectangle(kLeft - 4, kTop, kRight - kLeft + 8, kBottom - kTop, "clip") + "</clipPath>\n";
  }

  // A line through the values; a missing one interrupts it. Where the pen is put down it leaves a
  // dot, so that a lone value shows.
  std::string Line(std::string_view type, const std::vector<PlotPoint>& points) const {
    std::string commands;
    bool drawing = false;
    for (const PlotPoint& point : points) {
      const bool drawable = IsDrawable(point);
      if (drawable) commands += drawing ? "L" + At(point) : "M" + At(point) + "h0";
      drawing = drawable;
    }
    return Path(type, commands);
  }

  // The area between the limits: forth along the upper, back along the lower one.
  std::string Band() const {
    std::vector<PlotPoint> outline = panel_.upper;
    outline.insert(outline.end(), panel_.lower.rbegin(), panel_.lower.rend());
    std::string commands;
    for (const PlotPoint& point : outline) {
      if (IsDrawable(point)) commands += (commands.empty() ? "M" : "L") + At(point);
    }
    return commands.empty() ? "" : Path("limits", commands + "Z");
  }

  const PlotPanel& panel_;
};

std::string Frame(std::size_t panels) {
  const std::string width = Pixels(kWidth);
  const std::string height = Pixels(kPanelHeight * static_cast<double>(panels));
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
         "width=\"" +
         width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + " " + height + "\">\n" +
         kStyle + R"(<rect width="100%" height="100%" fill="#ffffff"/>)" + "\n";
}

}  // namespace

std::string PlotText(const std::vector<models::SeriesFit>& fits, unsigned horizon) {
  std::string panels;
  std::size_t count = 0;
  for (const models::SeriesFit& fit : fits) {
    if (IsHopeless(fit) || count == kMostPanels) continue;
    panels += PanelDrawing(MakePlotPanel(fit, horizon)).Draw(count++);
  }
  return Frame(count) + panels + "</svg>\n";
}

}  // namespace tsx::report
