// A host that saves named objects to a file and restores them: object_stream FILE.

#include <fstream>
#include <iostream>
#include <limits>
#include <string>

#include <tsxport/tsxport.h>

namespace {

// What the format calls missing.
constexpr double kMissing = std::numeric_limits<double>::lowest();

struct Settings {
  std::string series;
  double confidence = 0;
  unsigned int horizon = 0;
  bool seasonal = false;
};

struct Weights {
  double level = 0;
  double trend = kMissing;  // when there is none
  long fits = 0;
};

// The readers want the XML declaration and the document type declaration in front of the root.
// XMLDocType writes both.
bool Save(const std::string& file, const Settings& settings, const Weights& weights) {
  std::ofstream out(file);
  TIMESERIESXML::ExportFormat format;
  TIMESERIESXML::XMLDocType("MCXMLRoot", "savexml.dtd", 0).ToStream(out, format, false);
  TIMESERIESXML::StartRoot(out, "saved by object_stream");

  const TIMESERIESXML::XMLObj first("settings", 0);
  first.StartObj(out);
  first.WriteSubElement(out, settings.series);
  first.WriteSubElement(out, settings.confidence);
  first.WriteSubElement(out, settings.horizon);
  first.WriteSubElement(out, settings.seasonal);
  first.EndObj(out);

  const TIMESERIESXML::XMLObj second("weights of the model", 0);
  second.StartObj(out);
  second.WriteSubElement(out, weights.level);
  second.WriteSubElement(out, weights.trend);
  second.WriteSubElement(out, weights.fits);
  second.EndObj(out);

  TIMESERIESXML::EndRoot(out);
  return out.flush().good();
}

// The same calls in the same order. What follows a false is not read.
bool Restore(const std::string& file, Settings& settings, Weights& weights) {
  using TIMESERIESXML::ParseValue;
  std::ifstream in(file);
  return TIMESERIESXML::ParseStartXML(in) &&                          //
         TIMESERIESXML::ParseStartObj(in, "settings") &&              //
         ParseValue(in, settings.series) &&                           //
         ParseValue(in, settings.confidence) &&                       //
         ParseValue(in, settings.horizon) &&                          //
         ParseValue(in, settings.seasonal) &&                         //
         TIMESERIESXML::ParseEndObj(in) &&                            //
         TIMESERIESXML::ParseStartObj(in, "weights of the model") &&  //
         ParseValue(in, weights.level) &&                             //
         ParseValue(in, weights.trend) &&                             //
         ParseValue(in, weights.fits) &&                              //
         TIMESERIESXML::ParseEndObj(in);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: object_stream FILE\n";
    return 2;
  }
  const Settings settings = {
      .series = "monthly totals", .confidence = 0.95, .horizon = 12, .seasonal = true};
  const Weights weights = {.level = 0.247, .trend = kMissing, .fits = 15};
  Settings restored;
  Weights restoredWeights = {.level = 0, .trend = 0, .fits = 0};
  if (!Save(argv[1], settings, weights) || !Restore(argv[1], restored, restoredWeights)) {
    std::cerr << "object_stream: cannot save to " << argv[1] << " and restore\n";
    return 1;
  }
  std::cout << restored.series << ", " << restored.confidence << ", " << restored.horizon << ", "
            << restored.seasonal << '\n'
            << restoredWeights.level << ", "
            << (restoredWeights.trend == kMissing ? "no trend" : "trend") << ", "
            << restoredWeights.fits << '\n';
  return 0;
}
