#pragma once

#include <QString>

class QFileDialog;
class QWidget;

// What comes from a file the user names, or goes to one.
namespace Quillet {

class Preferences;

namespace DialoguesDeFichier {

// Opens in the folder that is kept by this key, or else among the documents.
QFileDialog *choix(const QString &titre, const QString &filtre, const Preferences &preferences, const QString &cle,
                   QWidget *parent);
void prevenir(const QString &titre, const QString &texte, QWidget *parent);

} // namespace DialoguesDeFichier

} // namespace Quillet
