#pragma once

// What was copied belongs to the program that copied it, and is lost with it unless another program takes it over.
namespace Quillet::PressePapiers {

// Before leaving: hands it to whoever keeps it on this desktop, in little more than a second, at once when it holds
// nothing of ours.
void leguer();

} // namespace Quillet::PressePapiers
