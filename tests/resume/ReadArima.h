#ifndef TSXPORT_TESTS_RESUME_READARIMA_H_
#define TSXPORT_TESTS_RESUME_READARIMA_H_

#include <cstddef>
#include <string>
#include <vector>

#include "Polynomials.h"

// An "ARIMAModel" as a reader of documents sees it: the text, the description in docs/documents.md,
// and nothing of this system.
namespace test {

struct ReadTransformation {
  std::string function;
  Polynomial differences = {1};
  std::size_t delay = 0;
};

struct ReadPredictor {
  ReadTransformation transformation;
  Polynomial numerator;
  Polynomial denominator;
  List values;   // FinalPredictor
  List outputs;  // FinalTransferFunc
};

struct ReadOutlier {
  std::string type;
  long start = 0;
  double size = 0;
  double decay = 0;
};

struct ReadState {
  std::string element;
  List z, predicted_z;
  List noise, predicted_noise;  // not of ARIMAMLState
  std::vector<List> thetas;     // of ARIMAMLSpState
  List nu;
  std::size_t iterations = 0;
  List vector, omega;  // of ARIMAMLState
};

struct ReadArima {
  std::size_t season = 1;
  ReadTransformation transformation;
  double constant = 0;
  Polynomial ar, ma;
  std::vector<ReadPredictor> predictors;
  std::vector<ReadOutlier> outliers;
  ReadState state;
  double error_variance = 0;
  std::size_t first_period = 0;
  long length = 0;  // periods of the fit
};

// Throws when there is no "ARIMAModel" with a state in the text, or no number where one belongs.
ReadArima ReadDocument(const std::string& text);

}  // namespace test

#endif  // TSXPORT_TESTS_RESUME_READARIMA_H_
