#include "settings/ShortCutText.h"
#include "settings/_expopt.h"
#include "ui_OptionsView.h"
#include "workbench/Views.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QShortcut>
#include <QtWidgets/QApplication>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QKeySequenceEdit>
#include <QtWidgets/QStyle>

namespace glotta {

namespace {

// In the order of the menu sections.
constexpr QStyle::StandardPixmap SectionIcons[] = {QStyle::SP_FileIcon,
                                                   QStyle::SP_FileDialogDetailedView,
                                                   QStyle::SP_FileDialogContentsView,
                                                   QStyle::SP_DesktopIcon,
                                                   QStyle::SP_DirIcon,
                                                   QStyle::SP_MediaPlay,
                                                   QStyle::SP_DriveHDIcon,
                                                   QStyle::SP_ComputerIcon,
                                                   QStyle::SP_DialogHelpButton};

class OptionsView : public WindowOf<QDialog, Ui_OptionsView, TfrmOptions> {
public:
    OptionsView(TfrmOptions& f, Ui& ui, QWidget* parent) : WindowOf(f, ui, parent) {
        BindPages();
        BindGeneral();
        BindSource();
        BindSkip();
        auto& c = controls;
        bind.Bind(*c.btHelp, form.btHelp);
        bind.Bind(*c.btOK, form.btOK);
        bind.Bind(*c.btCancel, form.btCancel);
    }

private:
    // The pages have tabs and, in the panel at the left, buttons.
    void BindPages() {
        auto& c = controls;
        bind.Bind(*c.pcOptions, form.pcOptions);
        c.lblSections->setText(Q(TfrmOptions::SectionsCaption));
        c.pnSections->setToolTip(Q(TfrmOptions::SectionsHint));
        auto* buttons = new QButtonGroup(this);
        int page = 0;
        for (QPushButton* button : {c.sbGeneral, c.sbSourceStrings, c.sbExcludeSkip}) {
            button->setText(Q(TfrmOptions::ButtonCaptions[std::size_t(page)]));
            c.pcOptions->setTabText(page, Q(TfrmOptions::PageCaptions[std::size_t(page)]));
            buttons->addButton(button, page++);
        }
        bind.Bind(*buttons, form.pcOptions);
        bind.Always([this, buttons] { buttons->button(form.pcOptions())->setChecked(true); });
        connect(new QShortcut(QKeySequence("Ctrl+Tab"), this), &QShortcut::activated, this,
                [this] { bind.Act([this] { form.SwitchPage(); }); });
    }

    void BindGeneral() {
        auto& c = controls;
        bind.Bind(*c.cbMenuItems, form.cbMenuItems, form.cbMenuItems.Items);
        for (int i = 0; i < c.cbMenuItems->count() && i < int(std::size(SectionIcons)); ++i)
            c.cbMenuItems->setItemIcon(i, style()->standardIcon(SectionIcons[i]));
        bind.Bind(*c.cbDefTGlotta, form.cbDefTGlotta, form.cbDefTGlotta.Items);
        bind.Follow(form.hkInMenu, [this, &c] {
            const QSignalBlocker quiet(c.hkInMenu);
            c.hkInMenu->setKeySequence(QKeySequence(Q(ShortCutToText(form.hkInMenu()))));
        });
        // One key, not a sequence of several.
        connect(c.hkInMenu, &QKeySequenceEdit::keySequenceChanged, bind.Context(),
                [this](const QKeySequence& keys) {
                    const QKeySequence first(keys.isEmpty() ? QKeySequence() : QKeySequence(keys[0]));
                    bind.Act([&] {
                        form.hkInMenu.Enter(TextToShortCut(S(first.toString(QKeySequence::PortableText))));
                    });
                });
        connect(c.hkInMenu, &QKeySequenceEdit::editingFinished, bind.Context(),
                [this] { form.hkInMenu.Set(form.hkInMenu()); });
        bind.Bind(*c.cbOpenAll, form.cbOpenAll);
        bind.Bind(*c.lbLangNames, form.lbLangNames);
        c.lbLangNames->ShowAsList();
        bind.Bind(*c.btnRename, form.btnRename);
        bind.Bind(*c.btnAdd, form.btnAdd);
        bind.Bind(*c.btnDelete, form.btnDelete);
        bind.Bind(*c.btnMoveUp, form.btnMoveUp);
        bind.Bind(*c.btnMoveDown, form.btnMoveDown);
        BindNumber(*c.edNLang, form.edNLang, *c.sbNLangUp, form.sbNLangUp, *c.sbNLangDown, form.sbNLangDown);
    }

    void BindSource() {
        auto& c = controls;
        BindNumber(*c.edIgnorableLength, form.edIgnorableLength, *c.sbIgnorableUp, form.sbIgnorableUp,
                   *c.sbIgnorableDown, form.sbIgnorableDown);
        bind.FilterKeys(*c.edIgnorableLength, TfrmOptions::AcceptsKey);
        BindNumber(*c.edCommentsLength, form.edCommentsLength, *c.sbCommentsUp, form.sbCommentsUp,
                   *c.sbCommentsDown, form.sbCommentsDown);
        BindNumber(*c.edPreviewLines, form.edPreviewLines, *c.sbPreviewUp, form.sbPreviewUp, *c.sbPreviewDown,
                   form.sbPreviewDown);
        bind.Bind(*c.cbReplaceMethod, form.cbReplaceMethod, form.cbReplaceMethod.Items);
        bind.Bind(*c.ckbAddFormName, form.ckbAddFormName);
        bind.Bind(*c.ckbNoCommentsAtAll, form.ckbNoCommentsAtAll);
        bind.Bind(*c.edHCPfx, form.edHCPfx);
        bind.Bind(*c.edConstPfx, form.edConstPfx);
        auto* parts = new QButtonGroup(this);
        parts->addButton(c.rbDontChange, 0);
        parts->addButton(c.rbUppercase, 1);
        bind.Bind(*parts, form.rgCnstPfx);
        bind.Bind(*c.ckbEmptyConsts, form.ckbEmptyConsts);
    }

    void BindSkip() {
        auto& c = controls;
        bind.Bind(*c.edExcludeChars, form.edExcludeChars);
        bind.Bind(*c.memSkipLines, form.memSkipLines);
        bind.Bind(*c.memSkipWords, form.memSkipWords);
        bind.Bind(*c.ckbUseREtoSkip, form.ckbUseREtoSkip);
    }

    void BindNumber(QLineEdit& edit, TField<std::string>& field, QAbstractButton& up, TAction& more,
                    QAbstractButton& down, TAction& less) {
        bind.Bind(edit, field);
        bind.Bind(up, more);
        bind.Bind(down, less);
    }
};

} // namespace

View* MakeOptionsView(TfrmOptions& form, Ui& ui, QWidget* parent) {
    return new OptionsView(form, ui, parent);
}

} // namespace glotta
