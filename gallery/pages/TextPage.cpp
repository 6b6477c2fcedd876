#include "TextPage.h"

#include "GalleryStyles.h"
#include "Label.h"
#include "StateCard.h"

#include <UiElements/app/IWApplication.h>
#include <UiElements/theme/WThemeUtils.h>
#include <UiElements/widgets/WTextBrowser.h>
#include <UiElements/widgets/WTextEdit.h>

#include <QVBoxLayout>

namespace {

QWidget *makeTextEdit()
{
    auto *edit = new WTextEdit;
    edit->setFontToken(WFont::BodySecondary);
    edit->setCSS(GalleryStyles::textField());
    edit->setPlainText(TextPage::tr("On my way."));
    edit->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    edit->setFixedHeight(72);
    edit->setTabChangesFocus(true);
    return edit;
}

// Links in rich text have no style sheet rules of their own; their colors come with the text, and so again with each
// theme.
void keepHtml(WTextBrowser *browser, const QString &html)
{
    const auto show = [browser, html] {
        browser->setHtml(WThemeUtils::getHyperlinkCSS(WThemeUtils::getThemeTypeOfWidget(browser)) + html);
    };
    QObject::connect(browser, &WTextBrowser::cssChanged, browser, show);
    show();
}

WTextBrowser *makeBrowser(const QString &html)
{
    auto *browser = new WTextBrowser;
    browser->setFontToken(WFont::BodySecondary);
    browser->setOpenLinks(false);
    browser->setCSS(GalleryStyles::textBrowser());
    keepHtml(browser, html);
    return browser;
}

} // namespace

TextPage::TextPage()
    : Page(tr("Text"), tr("Text that is written and text that is read."))
{
    addCard(new StateCard(QStringLiteral("WTextEdit"), tr("A field to write in, of several lines."), makeTextEdit));
    addCard(
        new StateCard(QStringLiteral("WTextBrowser"), tr("Shows rich text; links take the colors of the theme."), [] {
            WTextBrowser *browser = makeBrowser(tr("Read the <a href=\"#notes\">notes</a> first."));
            browser->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
            browser->setFixedHeight(72);
            return browser;
        }));

    WFrame *card = addCard(tr("A message with links"), tr("Paragraphs, emphasis, lists and code in one document."));
    WTextBrowser *message = makeBrowser(
        tr("<p>Hello everybody, the <a href=\"#agenda\">agenda for Thursday</a> is ready. In short:</p>"
           "<ul><li><b>Themes</b>: six of them, and each can be inverted.</li>"
           "<li><i>Fonts</i>: by token, at any scale from 0.5 to 1.5.</li>"
           "<li>Templates: <span style=\"font-family:Consolas\">$backgroundColors: input-background;</span></li></ul>"
           "<p>Questions? Write to <a href=\"#people\">the people behind it</a>.</p>"));
    message->setAccessibleName(tr("Message"));
    message->setFixedHeight(160);
    card->layout()->addWidget(message);

    card = addCard(tr("A longer text"), tr("With a selection and a scroll bar."));
    auto *edit = new WTextEdit;
    edit->setFontToken(WFont::BodyPrimary);
    edit->setCSS(GalleryStyles::textField());
    QString text;
    for (int i = 1; i <= 12; ++i)
        text += tr("Line %1 of a text that is longer than the room it has got.\n").arg(i);
    edit->setPlainText(text.trimmed());
    edit->setAccessibleName(tr("A longer text"));
    edit->setTabChangesFocus(true);
    edit->setFixedHeight(120);
    QTextCursor cursor = edit->textCursor();
    cursor.setPosition(10);
    cursor.setPosition(32, QTextCursor::KeepAnchor);
    edit->setTextCursor(cursor);
    card->layout()->addWidget(edit);
}
