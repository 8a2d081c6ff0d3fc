#pragma once

#include <functional>

namespace Quillet::LectureEntiere {

// Whether `lire` reads a picture, and the whole of it: a JPEG decoder that loses the thread may fill the rest with
// grey, and tell nobody but the log.
bool reussit(const std::function<bool()> &lire);

} // namespace Quillet::LectureEntiere
