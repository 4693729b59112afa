#ifndef FRAGSMITH_EDITOR_PANELS_DRAFT_BAR_H_
#define FRAGSMITH_EDITOR_PANELS_DRAFT_BAR_H_

#include "editor/panels/list_bar.h"
#include "editor/state/draft_keeper.h"

namespace fragsmith {

/// The offer of a bot that was not saved. It stays until it is answered,
/// whatever is loaded in the meantime.
class DraftBar : public ListBar {
  Q_OBJECT

 public:
  explicit DraftBar(QWidget* parent = nullptr);

  /// Asks about that draft. Its notes are what of it is not known here.
  void Offer(const DraftKeeper::Found& found);

 signals:
  void TakeDraft();
  void DiscardDraft();
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PANELS_DRAFT_BAR_H_
