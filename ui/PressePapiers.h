#pragma once

// What was copied belongs to the program that copied it, and is lost with it unless another program takes it over.
namespace PressePapiers {

// Before leaving: hands it to whoever keeps it on this desktop, within a second, at once when there is nothing to keep.
void leguer();

} // namespace PressePapiers
