// What each item of the menu does.

#include "editor/dialogs/about_dialog.h"
#include "editor/frm_main.h"
#include "editor/main_menu.h"
#include "editor/main_tool_bar.h"
#include "editor/toolkit/page_table.h"
#include "session/presets.h"

namespace fragsmith {

void frmMain::NameActions() {
  menu_ = {
      {QStringLiteral("mnuOptions"), [this] { ShowOptions(); }},
      {QStringLiteral("mnuAbout"), [this] { frmAbout(this).exec(); }},
      {QStringLiteral("mnuExit"), [this] { close(); }},
      {QStringLiteral("mnuTry"),
       [this] {
         if (typed_text_->StoreAll()) game_->TryInGame();
       }},
      {QStringLiteral("mnuPlayOut"), [this] { ShowMatches(); }},
      {QStringLiteral("mnuCheckFiles"),
       [this] { game_->CheckFiles(commands_->Places()); }},
      {QStringLiteral("mnuInstall"), [this] { InstallIntoGame(); }},
      {QStringLiteral("mnuCompareAverage"),
       [this] { Compare(CreateAverageBot(state_.random), tr("Average")); }},
      {QStringLiteral("mnuCompareZero"),
       [this] { Compare(CreateZeroBot(), tr("All zeros")); }},
      {QStringLiteral("mnuCompareOther"),
       [this] {
         const auto other = commands_->LoadToCompare();
         if (other) Compare(other->first, other->second);
       }},
      {QStringLiteral("mnuLibrary"),
       [this] { library_->Show(checker_->installed()); }},
      {QStringLiteral("mnuFindings"), [this] { findings_->Toggle(); }},
      {QStringLiteral("mnuChanges"), [this] { commands_->ShowChanges(); }},
      {QStringLiteral("mnuUndo"), [this] { edits_->Undo(); }},
      {QStringLiteral("mnuRedo"), [this] { edits_->Redo(); }},
      {QStringLiteral("mnuFind"), [this] { edits_->Find(); }},
      {QStringLiteral("mnuReset"), [this] { edits_->ResetFocused(); }},
      {QStringLiteral("mnuSaveAgain"),
       [this] {
         if (typed_text_->StoreAll()) commands_->SaveAgain();
       }},
      {QStringLiteral("mnuNewZero"), [this] { commands_->CreateZeroBot(); }},
      {QStringLiteral("mnuNewAverage"),
       [this] { commands_->CreateAverageBot(); }},
      {QStringLiteral("mnuNewRandom"),
       [this] { commands_->CreateRandomBot(); }},
      {QStringLiteral("mnuLoad"),
       [this] { commands_->ShowOpenSaveForm(OpenKind::kLoadBot); }},
      {QStringLiteral("mnuMake"), [this] { MakeBotFiles(); }},
      {QStringLiteral("mnuCharFile"),
       [this] { commands_->ShowOpenSaveForm(OpenKind::kCharacteristics); }},
      {QStringLiteral("mnuWeaponFile"),
       [this] { commands_->ShowOpenSaveForm(OpenKind::kWeaponWeights); }},
      {QStringLiteral("mnuitemFile"),
       [this] { commands_->ShowOpenSaveForm(OpenKind::kItemWeights); }},
      {QStringLiteral("mnuChatFile"),
       [this] { commands_->ShowOpenSaveForm(OpenKind::kChat); }},
      {QStringLiteral("mnuCheck"), [this] { CheckBaseq3(); }},
      {QStringLiteral("mnuModelAdd"), [this] { model_list_->AddModel(); }},
      {QStringLiteral("mnuSkinAdd"), [this] { model_list_->AddSkin(); }},
      {QStringLiteral("mnuModelRemove"),
       [this] { model_list_->RemoveModel(); }},
      {QStringLiteral("mnuSkinRemove"), [this] { model_list_->RemoveSkin(); }},
      {QStringLiteral("mnuExtraChat"),
       [this] { chat_page_->AddExtraChatsToBot(); }},
      {QStringLiteral("mnuDeleteChats"),
       [this] { chat_page_->DeleteAllChats(); }},
      {QStringLiteral("mnuSyn"),
       [this] { AskForSynonym(state_.synonyms, state_.prompts); }},
      {QStringLiteral("mnuManual"),
       [this] {
         help_->ShowManual(QString::fromUtf8(
             kPages.at(static_cast<std::size_t>(tbsBotPara_->currentIndex()))
                 .chapter));
       }},
      {QStringLiteral("mnuKeyboard"),
       [this] { help_->ShowManual(QStringLiteral("Keyboard")); }},
      {QStringLiteral("mnuNews"),
       [this] { help_->ShowManual(QStringLiteral("What is new")); }},
      {QStringLiteral("mnuWelcome"), [this] { ShowWelcome(); }},
      {QStringLiteral("mnuReport"), [this] { help_->ReportFault(); }},
  };
  for (const Level from : kLevels) {
    for (const Level to : kLevels) {
      menu_[QStringLiteral("mnuCopyLevel_%1_%2")
                .arg(NumberOf(from))
                .arg(NumberOf(to))] = [this, from, to] {
        edits_->CopyLevel(from, to);
      };
    }
  }
  for (const BotKind kind : kBotKinds) {
    menu_[NewKindItem(kind)] = [this, kind] {
      commands_->CreateBotOfKind(kind, checker_->game());
    };
  }
}

void frmMain::BuildMenu() {
  NameActions();
  FillMainMenu(*menuBar(), [this](const QString& name) {
    FinishStart();
    if (!TakesTypingItself(name) && !typed_text_->Store()) return;
    menu_.at(name)();
    KeepState();
  });
  auto* const recent =
      menuBar()->findChild<QMenu*>(QStringLiteral("mnuRecent"));
  connect(recent, &QMenu::aboutToShow, this, [this, recent] {
    commands_->FillRecentBots(*recent, [this] { return typed_text_->Store(); });
  });
  addToolBar(new MainToolBar(*menuBar(), this));
}

}  // namespace fragsmith
