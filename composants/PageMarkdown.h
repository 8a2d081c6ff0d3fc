#pragma once

#include <QTextBrowser>

class QDir;

namespace Quillet {

// A Markdown text to read, in a column that the eye follows with ease. Keys scroll it, Tab goes from link to link: one
// leads to a heading of the text, or opens the browser.
class PageMarkdown : public QTextBrowser
{
    Q_OBJECT

public:
    // Its pictures' names start from `dossier`.
    PageMarkdown(QString texte, const QDir &dossier, QWidget *parent = nullptr);

protected:
    bool event(QEvent *evenement) override;
    void changeEvent(QEvent *evenement) override;
    void resizeEvent(QResizeEvent *evenement) override;

private:
    void ecrire();
    [[nodiscard]] int largeurOfferte() const; // beside the scroll bar
    void cadrer();
    void suivre(const QUrl &lien);

    QString texte_;
};

} // namespace Quillet
