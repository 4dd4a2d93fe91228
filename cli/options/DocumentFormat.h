#ifndef TSXPORT_CLI_OPTIONS_DOCUMENTFORMAT_H_
#define TSXPORT_CLI_OPTIONS_DOCUMENTFORMAT_H_

#include "cli/options/NamedValue.h"

namespace tsx::cli {

enum class DocumentFormat { kTscxml, kPmml };

// As --format names them.
inline constexpr NamedValue<DocumentFormat> kDocumentFormats[] = {
    {"tscxml", DocumentFormat::kTscxml}, {"pmml", DocumentFormat::kPmml}};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_DOCUMENTFORMAT_H_
