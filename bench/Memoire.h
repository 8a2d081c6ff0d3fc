#pragma once

namespace Quillet {

// What this process holds, in KiB.
namespace Memoire {

double tas();        // allocated, and not given back
double residente();  // of the machine's memory
double auPlusHaut(); // the most it was

} // namespace Memoire

} // namespace Quillet
