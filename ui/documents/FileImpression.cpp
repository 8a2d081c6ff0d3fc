#include "ui/documents/FileImpression.h"

#include <QPrinter>
#include <QTemporaryFile>

#include <cups/cups.h>

namespace {

// CUPS' own list of options, freed with it.
class Options
{
public:
    Options() = default;
    ~Options() { cupsFreeOptions(nombre_, options_); }
    Q_DISABLE_COPY_MOVE(Options)

    void ajouter(const char *nom, const QByteArray &valeur)
    {
        nombre_ = cupsAddOption(nom, valeur.constData(), nombre_, &options_);
    }
    [[nodiscard]] int nombre() const { return nombre_; }
    [[nodiscard]] cups_option_t *liste() const { return options_; }

private:
    int nombre_ = 0;
    cups_option_t *options_ = nullptr;
};

QByteArray faces(QPrinter::DuplexMode mode)
{
    switch (mode) {
    case QPrinter::DuplexLongSide:
        return "two-sided-long-edge";
    case QPrinter::DuplexShortSide:
        return "two-sided-short-edge";
    default:
        return "one-sided";
    }
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
        return QStringLiteral("le service d’impression ne répond pas");
    default:
        return QStringLiteral("erreur du service d’impression (%1)").arg(QString::fromUtf8(cupsLastErrorString()));
    }
}

} // namespace

void FileImpression::envoyer(const QByteArray &pdf, const QString &titre, const QPrinter &choix)
{
    QTemporaryFile fichier;
    if (!fichier.open() || fichier.write(pdf) != pdf.size() || !fichier.flush())
        throw Refus(
            QStringLiteral("Impression impossible : le dossier des fichiers temporaires est plein ou protégé."));

    Options options;
    options.ajouter("copies", QByteArray::number(choix.copyCount()));
    options.ajouter("media", "iso_a4_210x297mm");
    options.ajouter("print-scaling", "fit");
    options.ajouter("orientation-requested", "3"); // portrait: never turned to fit
    options.ajouter("sides", faces(choix.duplex()));
    options.ajouter("print-color-mode", choix.colorMode() == QPrinter::Color ? "color" : "monochrome");
    const int travail = cupsPrintFile2(CUPS_HTTP_DEFAULT, choix.printerName().toUtf8().constData(),
                                       fichier.fileName().toUtf8().constData(), titre.toUtf8().constData(),
                                       options.nombre(), options.liste());
    if (travail == 0)
        throw Refus(QStringLiteral("L’imprimante « %1 » n’a pas pris la facture : %2.")
                        .arg(choix.printerName(), raison(cupsLastError())));
}
