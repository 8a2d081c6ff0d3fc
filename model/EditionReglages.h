#pragma once

#include "model/Reglages.h"

// What a seller does to packagings and sellers, beside changing a text: settings as they become.
namespace Quillet::EditionReglages {

// Of one seller still without a name, with the fees, packagings and customs of the example.
Reglages premiers(Reglages exemple);

// At the end, under a name that is free, to be changed.
Reglages avecEmballage(Reglages reglages);
// A new order starts with the first one left when it started with this one.
Reglages sansEmballage(Reglages reglages, qsizetype rang);
// By `pas` places, as far as the list goes.
Reglages emballageDeplace(Reglages reglages, qsizetype rang, qsizetype pas);
// A new order still starts with it if it did.
Reglages emballageRenomme(Reglages reglages, qsizetype rang, const QString &nom);
// What a packaging that was called so is called now; the same when it is gone.
QString nomApres(const QString &nom, const QList<Emballage> &avant, const QList<Emballage> &apres);

// With the mention of VAT of the other.
Reglages avecVendeur(Reglages reglages, Vendeur vendeur);

} // namespace Quillet::EditionReglages
