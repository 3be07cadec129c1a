#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fuzz/support/DocumentPainting.h"
#include "fuzz/support/DocumentTree.h"
#include "fuzz/support/PictureFaults.h"

namespace VEXA::Testing {

struct RegressionDocument {
    std::string name;  ///< of the file
    std::string text;
};

/// tests/regressions/documents, the examples, and the documents and trees of fuzz/corpus.
std::vector<RegressionDocument> regressionDocuments();

}  // namespace VEXA::Testing
