#include "bench/Programme.h"

#include <QCoreApplication>
#include <QProcess>

namespace Quillet {

QList<double> Programme::valeurs(const QString &nom, const QStringList &arguments)
{
    QProcess enfant;
    enfant.start(QCoreApplication::applicationDirPath() + u'/' + nom, arguments);
    if (!enfant.waitForFinished() || enfant.exitStatus() != QProcess::NormalExit || enfant.exitCode() != 0)
        qFatal("%s %s : %s\n%s", qPrintable(nom), qPrintable(arguments.join(u' ')), qPrintable(enfant.errorString()),
               enfant.readAllStandardError().constData());
    QList<double> valeurs;
    for (const QByteArray &valeur : enfant.readAllStandardOutput().simplified().split(' '))
        valeurs.append(valeur.toDouble());
    return valeurs;
}

} // namespace Quillet
