#include "fuzz/weight_files.h"

namespace fragsmith {

void FuzzOne(std::string_view bytes) {
  FuzzWeightFile(bytes, kWeaponWeightRange, ReadWeaponWeightFile,
                 WriteWeaponWeightFile);
}

}  // namespace fragsmith
