#pragma once

// What this process holds, in KiB.
namespace Quillet::Memoire {

double tas();        // allocated, and not given back
double residente();  // of the machine's memory
double auPlusHaut(); // the most it was

} // namespace Quillet::Memoire
