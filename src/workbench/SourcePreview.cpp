#include "workbench/SourcePreview.h"

#include "platform/Text.h"
#include "workbench/QtText.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QTextBlock>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>

namespace glotta {

namespace {

QString WithLineFeeds(std::string_view text) {
    return Q(text).replace("\r\n", "\n").replace('\r', '\n');
}

} // namespace

void MakeSourcePane(QPlainTextEdit& pane) {
    pane.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
}

void ShowSource(QPlainTextEdit& pane, const std::string& text, int line, int column, int length) {
    const QString shown = WithLineFeeds(text);
    if (pane.toPlainText() != shown) pane.setPlainText(shown);
    const QTextBlock block = pane.document()->findBlockByNumber(line);
    if (!block.isValid() || text.empty()) return pane.setExtraSelections({});
    // The literal may go on in the next lines, so its length counts line ends as the source has them.
    std::string_view rest = text;
    for (int i = 0; i < line; ++i) {
        rest.remove_prefix(std::min(rest.find_first_of("\r\n"), rest.size()));
        rest.remove_prefix(rest.starts_with("\r\n") ? 2 : std::min<std::size_t>(1, rest.size()));
    }
    const std::size_t from = ByteOffset(rest, std::size_t(column));
    const std::size_t size = ByteOffset(rest.substr(from), std::size_t(length));
    const int start = block.position() + int(WithLineFeeds(rest.substr(0, from)).size());
    const int end = length > 0 ? start + int(WithLineFeeds(rest.substr(from, size)).size())
                               : block.position() + block.length() - 1;

    QTextCursor cursor(pane.document());
    cursor.setPosition(start);
    pane.setTextCursor(cursor);
    pane.centerCursor();
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    pane.setTextCursor(cursor);
    // Drawn as selected also while another control has the focus.
    QTextEdit::ExtraSelection mark;
    mark.cursor = cursor;
    mark.format.setBackground(pane.palette().color(QPalette::Active, QPalette::Highlight));
    mark.format.setForeground(pane.palette().color(QPalette::Active, QPalette::HighlightedText));
    pane.setExtraSelections({mark});
}

} // namespace glotta
