#include "fuzz/oracle.h"
#include "session/draft.h"

namespace fragsmith {

void FuzzOne(std::string_view bytes) {
  Notes notes;
  const Result<Draft> draft = ReadDraft(bytes, "file", notes);
  ExpectShowable(notes);
  if (!draft) return ExpectShowable(Describe(draft.error()));
  Notes later;
  const Result<Draft> again = ReadDraft(WriteDraft(*draft), "file", later);
  Expect(again.has_value() && later.empty(), "our own draft is a good one");
  // The fun name loses a pair of quotes each time that it has one.
  Draft unquoted = *draft;
  unquoted.bot.Put(kFunNameField, again->bot.FunName());
  ExpectEqual(WriteDraft(unquoted), WriteDraft(*again), "the draft is stable");
}

}  // namespace fragsmith
