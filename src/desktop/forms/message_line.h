#pragma once

#include "desktop/folding.h"

namespace tarvane::desktop {

// The line at the foot of the main window: what the screen's message label says, and what the window itself
// has to say. A message is written quietly from the worker's next key or click on: it is an old one then.
class MessageLine : public ElidedLabel {
 public:
  MessageLine();
  void Say(const QString& text);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

// With the label's messages in it.
MessageLine* MakeMessageLine(Form& form, Label& label);

}  // namespace tarvane::desktop
