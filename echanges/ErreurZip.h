#pragma once

#include "model/Echec.h"

#include <QString>

#include <zip.h>

#include <memory>

// What libzip holds, let go of by itself, and what it refuses, in words.
namespace Quillet::Zip {

struct Abandon
{
    void operator()(zip_t *archive) const { zip_discard(archive); }
    void operator()(zip_file_t *entree) const { zip_fclose(entree); }
    void operator()(zip_source_t *source) const { zip_source_free(source); }
};

using Archive = std::unique_ptr<zip_t, Abandon>;
using Entree = std::unique_ptr<zip_file_t, Abandon>;
using Source = std::unique_ptr<zip_source_t, Abandon>;

class Erreur
{
public:
    Erreur() { zip_error_init(&erreur_); }
    explicit Erreur(int code) { zip_error_init_with_code(&erreur_, code); }
    ~Erreur() { zip_error_fini(&erreur_); }
    Erreur(const Erreur &) = delete;
    Erreur &operator=(const Erreur &) = delete;

    [[nodiscard]] zip_error_t *ici() { return &erreur_; }

private:
    zip_error_t erreur_{};
};

QString enFrancais(zip_error_t *erreur);

} // namespace Quillet::Zip
