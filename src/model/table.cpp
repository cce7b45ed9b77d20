#include "model/table.h"

#include "model/errors.h"

namespace orb::model {

void ThrowIndexOutOfRange(int index, int bound) {
  throw IndexOutOfRange("Index out of range: " + std::to_string(index) + " in a table of " +
                        std::to_string(bound) + ".");
}

}  // namespace orb::model
