#include "ui/documents/FileImpression.h"

#include "model/Echec.h"

#include <QTemporaryFile>

#include <cups/cups.h>

#include <memory>

namespace Quillet {

namespace {

constexpr int patience = 5'000; // ms that a server may stay silent
constexpr int longuePatience = 10'000;
const QString serviceMuet = QStringLiteral("le service d’impression ne répond pas");

using Connexion = std::unique_ptr<http_t, decltype([](http_t *connexion) { httpClose(connexion); })>;

// None when the server does not answer a first, simple question: the calls that follow would wait for minutes. Nor is
// a password waited for, which CUPS would ask in the terminal.
Connexion connecter(int silence)
{
    cupsSetPasswordCB2([](auto...) -> const char * { return nullptr; }, nullptr);
    Connexion connexion(
        httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, silence, nullptr));
    if (!connexion)
        return connexion;
    const auto renoncer = [](http_t *, void *) { return 0; };
    httpSetTimeout(connexion.get(), silence / 1000.0, renoncer, nullptr);
    ipp_t *reponse = cupsDoRequest(connexion.get(), ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/");
    if (!reponse)
        connexion.reset();
    ippDelete(reponse);
    return connexion;
}

// A queue as the dialog names it, "queue" or "queue/instance", with the options its user gave it.
class Destinataire
{
public:
    Destinataire(http_t *connexion, const QString &nom)
    {
        const QByteArray file = nom.section(u'/', 0, 0).toUtf8();
        const QByteArray instance = nom.section(u'/', 1).toUtf8();
        destination_.reset(
            cupsGetNamedDest(connexion, file.constData(), instance.isEmpty() ? nullptr : instance.constData()));
    }

    [[nodiscard]] bool existe() const { return destination_ != nullptr; }
    void ajouter(const QByteArray &nom, const QByteArray &valeur)
    {
        destination_->num_options =
            cupsAddOption(nom.constData(), valeur.constData(), destination_->num_options, &destination_->options);
    }
    // Returns the job's number, 0 when it was not taken.
    [[nodiscard]] int imprimer(http_t *connexion, const QString &fichier, const QString &titre) const
    {
        return cupsPrintFile2(connexion, destination_->name, fichier.toUtf8().constData(), titre.toUtf8().constData(),
                              destination_->num_options, destination_->options);
    }

private:
    std::unique_ptr<cups_dest_t, decltype([](cups_dest_t *destination) { cupsFreeDests(1, destination); })>
        destination_;
};

// What Qt asks of a queue before it shows it.
void interroger(http_t *connexion, const char *file)
{
    if (!Destinataire(connexion, QString::fromUtf8(file)).existe())
        return;
    QFile oubli(QStringLiteral("/dev/null"));
    if (oubli.open(QIODevice::WriteOnly))
        cupsGetFd(connexion, QByteArray("/printers/" + QByteArray(file) + ".ppd").constData(), oubli.handle());
}

QString raison(ipp_status_t statut)
{
    switch (statut) {
    case IPP_STATUS_ERROR_NOT_FOUND:
        return QStringLiteral("elle n’existe plus");
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
        return QStringLiteral("elle n’accepte pas de travaux en ce moment");
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
        return QStringLiteral("elle ne vous est pas ouverte");
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
    case IPP_STATUS_ERROR_INTERNAL:
        return serviceMuet;
    default:
        return QStringLiteral("erreur du service d’impression (%1)").arg(QString::fromUtf8(cupsLastErrorString()));
    }
}

} // namespace

void FileImpression::consulter()
{
    const Connexion connexion = connecter(longuePatience);
    if (!connexion)
        return;
    cups_dest_t *files = nullptr;
    const int nombre = cupsGetDests2(connexion.get(), &files);
    const cups_dest_t *parDefaut = cupsGetDest(nullptr, nullptr, nombre, files);
    if (nombre > 0)
        interroger(connexion.get(), (parDefaut ? parDefaut : files)->name);
    cupsFreeDests(nombre, files);
}

QList<std::pair<QByteArray, QByteArray>> FileImpression::options(const Travail &travail)
{
    QList<std::pair<QByteArray, QByteArray>> options{{"copies", QByteArray::number(travail.exemplaires)},
                                                     {"media", "iso_a4_210x297mm"},
                                                     {"print-scaling", "fit"},
                                                     {"orientation-requested", "3"}, // portrait
                                                     {"sides", "one-sided"}};        // two copies never share a sheet
    if (travail.enCouleur)
        options.emplaceBack("print-color-mode", *travail.enCouleur ? "color" : "monochrome");
    return options;
}

void FileImpression::envoyer(const QByteArray &pdf, const QString &titre, const Travail &travail)
{
    QTemporaryFile fichier;
    if (!fichier.open() || fichier.write(pdf) != pdf.size() || !fichier.flush())
        throw Echec(
            QStringLiteral("Impression impossible : le dossier des fichiers temporaires est plein ou protégé."));

    const auto refuser = [&](const QString &pourquoi) {
        throw Echec(QStringLiteral("L’imprimante « %1 » n’a pas pris la facture : %2.").arg(travail.file, pourquoi));
    };
    const Connexion connexion = connecter(patience);
    if (!connexion)
        refuser(serviceMuet);
    Destinataire destinataire(connexion.get(), travail.file);
    if (!destinataire.existe())
        refuser(raison(cupsLastError()));
    for (const auto &[nom, valeur] : options(travail))
        destinataire.ajouter(nom, valeur);
    if (destinataire.imprimer(connexion.get(), fichier.fileName(), titre) == 0)
        refuser(raison(cupsLastError()));
}

} // namespace Quillet
