// Feeds a target with the inputs kept in the folders named, where no libFuzzer does. Each is named first: the last one
// named is the one that broke something.
#include "fuzz/Cible.h"

#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille);

int main(int argc, char **argv)
{
    for (int rang = 1; rang < argc; ++rang) {
        const QDir dossier(QString::fromLocal8Bit(argv[rang]));
        const QStringList noms = dossier.entryList(QDir::Files);
        Quillet::exiger(!noms.isEmpty(), argv[rang]);
        for (const QString &nom : noms) {
            std::fprintf(stderr, "%s\n", qPrintable(dossier.filePath(nom))); // at once, even before an abort
            QFile fichier(dossier.filePath(nom));
            Quillet::exiger(fichier.open(QIODevice::ReadOnly), "lisible");
            const QByteArray lu = fichier.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(lu.constData()),
                                   static_cast<std::size_t>(lu.size()));
        }
    }
    return argc > 1 ? 0 : 1;
}
