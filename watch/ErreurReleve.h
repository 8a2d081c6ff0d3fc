#pragma once

#include "model/Echec.h"

#include <utility>

namespace Quillet {

// Why a page could not be read. `texte` is the whole sentence that the tariffs screen shows; `detail` is the short
// phrase, in lower case, of whoever threw it.
class ErreurReleve : public Echec
{
public:
    enum class Cas { reseau, pageIllisible };

    // The page could not be fetched.
    static ErreurReleve reseau(const QString &detail);
    // It was fetched, but does not have the expected form.
    static ErreurReleve pageIllisible(const QString &detail);

    [[nodiscard]] Cas cas() const { return cas_; }
    [[nodiscard]] QString detail() const { return detail_; }

private:
    ErreurReleve(Cas cas, QString detail, const QString &texte) : Echec(texte), cas_(cas), detail_(std::move(detail)) {}

    Cas cas_;
    QString detail_;
};

} // namespace Quillet
