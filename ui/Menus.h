#pragma once

namespace Quillet {

class Fenetre;
class MisesAJour;
struct Contexte;

// The window's menus.
namespace Menus {

void garnir(Fenetre &fenetre, const Contexte &contexte, MisesAJour &misesAJour);

} // namespace Menus

} // namespace Quillet
