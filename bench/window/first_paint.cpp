#include "bench/window/first_paint.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "bench/silent_prompts.h"
#include "editor/frm_main.h"
#include "editor/main_menu.h"
#include "editor/pages/page_strip.h"
#include "editor/pages/parameter_page.h"
#include "editor/panels/identity_panel.h"
#include "editor/panels/model_selector.h"
#include "editor/panels/notes_bar.h"
#include "editor/state/current_bot.h"
#include "editor/state/program_state.h"
#include "editor/toolkit/page_table.h"
#include "session/presets.h"

namespace fragsmith::bench {
namespace {

constexpr QSize kSize(1024, 740);

/// Ends the process behind the first painting of a window.
class FirstPaint : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      // When this runs, the children are painted too and all is with the
      // display.
      QTimer::singleShot(0, this, [] { std::_Exit(EXIT_SUCCESS); });
    }
    return QObject::eventFilter(watched, event);
  }
};

std::unique_ptr<QMainWindow> BareWindow() {
  auto window = std::make_unique<QMainWindow>();
  for (const char* const name : {"&Program", "&Bots", "&Files", "&Tools"}) {
    window->menuBar()->addMenu(QLatin1String(name));
  }
  window->statusBar();
  return window;
}

/// The editor's window by its own pieces, but with one page.
class OnePageWindow : public QMainWindow {
 public:
  explicit OnePageWindow(ProgramState& state) {
    state.LoadIniFile();
    state.LoadLists();
    auto* const identity = new IdentityPanel(current_, state.prompts, this);
    auto* const models = new ModelSelector(current_, state, this);
    auto* const notes = new NotesBar(this);
    auto* const strip = new PageStrip(this);
    auto* const page = new ParameterPage(kPages.front(), current_, strip);
    for (const PageRow& row : kPages) {
      strip->addTab(
          &row == &kPages.front() ? static_cast<QWidget*>(page) : new QWidget,
          QString::fromUtf8(row.tab_caption));
    }
    FillMainMenu(*menuBar(), [](const QString& /*name*/) {});
    auto* const content = new QWidget(this);
    auto* const column = new QVBoxLayout(content);
    auto* const panel = new QHBoxLayout;
    panel->addWidget(identity);
    panel->addWidget(models);
    column->addLayout(panel);
    column->addWidget(notes);
    column->addWidget(strip, 1);
    setCentralWidget(content);
    statusBar();
    current_.Replace(CreateZeroBot(), false, {});
    models->ShowBot();
    identity->ShowBot();
  }

 private:
  CurrentBot current_;
};

}  // namespace

int PaintOnce(std::string_view kind, int& count, char** words) {
  const QApplication application(count, words);
  SilentPrompts prompts;
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / "fragsmith-window-bench";
  std::filesystem::create_directories(folder);
  ProgramState state({folder, folder}, prompts, SeededRandom(1));
  std::unique_ptr<QMainWindow> window;
  if (kind == "bare_window") {
    window = BareWindow();
  } else if (kind == "shown_page_alone") {
    window = std::make_unique<OnePageWindow>(state);
  } else if (kind == "fragsmith") {
    window = std::make_unique<frmMain>(state);
  } else {
    return EXIT_FAILURE;
  }
  FirstPaint first_paint;
  window->installEventFilter(&first_paint);
  window->resize(kSize);
  window->show();
  return QApplication::exec();
}

}  // namespace fragsmith::bench
