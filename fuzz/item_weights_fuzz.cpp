#include "fuzz/weight_files.h"

namespace fragsmith {

void FuzzOne(std::string_view bytes) {
  FuzzWeightFile(bytes, kItemWeightRange, ReadItemWeightFile,
                 WriteItemWeightFile);
}

}  // namespace fragsmith
