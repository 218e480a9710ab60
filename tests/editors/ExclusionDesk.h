// A form in the exclusion editor, with what a test reads of it.
#pragma once
#include "editors/Excludededitor.h"
#include "platform/RegFileStore.h"
#include "support/ScriptedUi.h"
#include "support/TempFolder.h"
#include "vcl/FormFile.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace glotta {

inline const std::string SampleForm = R"(object Form1: TForm1
  Caption = 'Main'
  Menu = MainMenu1
  object zPanel: TPanel
    Caption = 'p'
    object Button1: TButton
      Caption = 'Go'
      Hint = 'goes'
      PopupMenu = PopupMenu1
    end
    object Label1: TLabel
      Caption = 'L'
      Font.Charset = DEFAULT_CHARSET
      Font.Name = 'Tahoma'
    end
  end
  object Edit1: TLabeledEdit
    Text = 'e'
    EditLabel.Caption = 'Name'
  end
  object List1: TListView
    Columns = <
      item
        Caption = 'A'
      end
      item
        Caption = 'B'
      end>
  end
  object Gadget1: TGadget
    Width = 10
    Height = 10
    Lamp.Texts.Strings = (
      'on')
    Lamp.Font.Name = 'Arial'
    Lamp.Watts = 5
    Parts = <
      item
        Title = 'x'
      end>
  end
  object PopupMenu1: TPopupMenu
    object Item1: TMenuItem
      Caption = 'Cut'
    end
  end
  object MainMenu1: TMainMenu
    Images = Images1
  end
  object Glotta1: TGlotta
    DoNotTranslate.Strings = (
      'label1'
      '!TTimer')
  end
end
)";

struct ExclusionDesk {
    explicit ExclusionDesk(const std::string& form = SampleForm)
        : file((RegisterGlottaClasses(), FormFile::Parse(form, "Main.dfm"))), tree(file, "TForm") {}

    TgxCustomLang& Lang() { return dynamic_cast<TgxCustomLang&>(*tree.Root().FindComponent("Glotta1")); }
    // The editor; made anew after Reopen.
    TfrmExcludeFromTranslation& Form() {
        if (!form_) form_ = std::make_unique<TfrmExcludeFromTranslation>(ui, registry, Lang());
        return *form_;
    }
    void Reopen() { form_.reset(); }
    ExclusionModel& Model() { return Form().Model; }

    void Select(const std::string& component, const std::string& property = {}) {
        const int node = Model().tvComponents.Find(component);
        ASSERT_NE(node, TTree::None) << component;
        Model().tvComponents.Select(node);
        if (property.empty()) return;
        for (const int each : Model().tvProperties.InOrder())
            if (Model().tvProperties[each].text == property) return Model().tvProperties.Select(each);
        ADD_FAILURE() << component << " has no " << property;
    }

    // "  0 Name|" for each node, indented.
    static std::string Shown(const TTree& tree) {
        std::string text;
        for (const int node : tree.InOrder()) {
            for (int above = tree[node].parent; above != TTree::None; above = tree[above].parent)
                text += "  ";
            text += std::to_string(tree[node].image) + " " + tree[node].text + "\n";
        }
        return text;
    }
    static std::string Joined(const std::vector<std::string>& items) { return JoinLines(items, ","); }
    std::string Lists() {
        return Joined(Model().lbExclComponents.Items()) + " / " + Joined(Model().lbExclProperties.Items()) +
               " / " + Joined(Model().lbExclCompProps.Items()) + (Model().modified ? " *" : "");
    }
    std::string Saved() {
        return Joined(Lang().GetStrings("DoNotTranslate")) + " / " +
               Joined(Lang().GetStrings("ExcludedProperties")) + " / " +
               Joined(Lang().GetStrings("SmartExcludeProps"));
    }

    TempFolder folder;
    RegFileStore registry{folder / "settings.reg"};
    ScriptedUi ui;
    FormFile file;
    ComponentTree tree;

private:
    std::unique_ptr<TfrmExcludeFromTranslation> form_;
};

} // namespace glotta
