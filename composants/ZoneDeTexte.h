#pragma once

#include <QPlainTextEdit>

#include <functional>

namespace Quillet {

// A field of several lines that looks like the other fields; Tab leaves it.
class ZoneDeTexte : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit ZoneDeTexte(int lignes, QWidget *parent = nullptr);
    // What is made of a text that is pasted or dropped, a piece of a line apart.
    void nettoyerLeColle(std::function<QString(const QString &)> nettoyage);

protected:
    bool event(QEvent *evenement) override;
    void insertFromMimeData(const QMimeData *contenu) override;

private:
    std::function<QString(const QString &)> nettoyage_;
};

} // namespace Quillet
