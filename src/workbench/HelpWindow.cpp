#include "workbench/HelpWindow.h"

#include "editors/Excludededitor.h"
#include "editors/Translationwizard.h"
#include "editors/_gxcomboproped.h"
#include "host/StringListEditor.h"
#include "scanner/Skippedstrings.h"
#include "scanner/_scan.h"
#include "settings/_expopt.h"
#include "storage/ProjectSettingsForm.h"
#include "storage/FoundPhrases.h"
#include "storage/ReplConfirm.h"
#include "storage/_findphrase.h"
#include "storage/_badidsform.h"
#include "storage/_stridrepl.h"
#include "translation/ConfigureLanguages.h"
#include "translation/ExtendedTranslations.h"
#include "translation/TransEditor.h"
#include "translation/TranslUnits.h"
#include "workbench/QtText.h"

#include <QtCore/QFile>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QTextBlock>
#include <QtGui/QTextFrame>
#include <QtWidgets/QDialog>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QVBoxLayout>

#include <typeindex>
#include <unordered_map>

// The resource lies in a static library, which the linker would leave out.
static void LoadHelpText() {
    Q_INIT_RESOURCE(help);
}

namespace glotta {
namespace {

using Show = std::function<void(std::string_view)>;

struct Topic {
    std::string_view section;
    void (*connect)(TForm&, std::string_view section, const Show&);
};

template <class Form> std::pair<const std::type_index, Topic> Entry(std::string_view section) {
    return {typeid(Form), {section, [](TForm& form, std::string_view at, const Show& show) {
                               if constexpr (requires(Form & f) { f.ShowHelp; })
                                   static_cast<Form&>(form).ShowHelp = [show, at] { show(at); };
                           }}};
}

// As links name a heading.
QString Anchor(const QString& heading) {
    return heading.toLower().replace(' ', '-');
}

void GoTo(QTextBrowser& text, const QString& anchor) {
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0 || Anchor(block.text()) != anchor) continue;
        text.setTextCursor(QTextCursor(block));
        text.verticalScrollBar()->setValue(
            int(text.document()->documentLayout()->blockBoundingRect(block).top()));
        return;
    }
}

QDialog* MakeHelpWindow(QWidget& over) {
    LoadHelpText();
    auto* window = new QDialog(&over);
    window->setObjectName("HelpWindow");
    window->setWindowTitle("TGlotta Expert Help");
    window->resize(640, 520);
    auto* text = new QTextBrowser(window);
    QFile file(":/help.md");
    if (file.open(QIODevice::ReadOnly)) text->setMarkdown(QString::fromUtf8(file.readAll()));
    text->document()->setIndentWidth(20);
    QTextFrameFormat page = text->document()->rootFrame()->frameFormat();
    page.setMargin(14);
    page.setBottomMargin(window->height()); // the last section, too, can stand at the top
    text->document()->rootFrame()->setFrameFormat(page);
    text->setOpenLinks(false);
    QObject::connect(text, &QTextBrowser::anchorClicked, text,
                     [text](const QUrl& link) { GoTo(*text, link.fragment()); });
    auto* column = new QVBoxLayout(window);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(text);
    return window;
}

} // namespace

void ShowHelp(std::string_view section, QWidget& over) {
    auto* window = over.findChild<QDialog*>("HelpWindow", Qt::FindDirectChildrenOnly);
    if (!window) window = MakeHelpWindow(over);
    window->show();
    window->raise();
    window->activateWindow();
    GoTo(*window->findChild<QTextBrowser*>(), Anchor(Q(std::string(section))));
}

std::string_view OfferHelp(TForm& form, const Show& show) {
    static const std::unordered_map<std::type_index, Topic> topics = {
        Entry<TfrmBadIDs>("Bad string identifiers"),
        Entry<TfrmConfigureLanguages>("Configure languages"),
        Entry<TfrmExcludeFromTranslation>("Exclude from translations"),
        Entry<TfrmExtendedTranslations>("Extended translations"),
        Entry<TfrmFind>("Find and replace phrase"),
        Entry<TfrmFound>("Found strings"),
        Entry<TfrmFoundPhrases>("Find and replace phrase"),
        Entry<TfrmGlottaComboEditor>("Language drop-down"),
        Entry<TfrmOptions>("Options"),
        Entry<TfrmProjectTranslationSettings>("Project settings"),
        Entry<TfrmReplConfirm>("Find and replace phrase"),
        Entry<TfrmSkippedStrings>("Skipped strings"),
        Entry<TfrmStrReplace>("Rename of an identifier"),
        Entry<TStringsEditDlg>("Form designer"),
        Entry<TfrmTransEditor>("Translation editor"),
        Entry<TfrmTranslationWizard>("Translation wizard"),
        Entry<TfrmTranslUnits>("Unit choice"),
    };
    const auto found = topics.find(typeid(form));
    if (found == topics.end()) return {};
    found->second.connect(form, found->second.section, show);
    return found->second.section;
}

} // namespace glotta
