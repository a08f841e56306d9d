// The word processor as a recording fake, creatable under its own program identifier.
#pragma once

#include "fake_application.h"

// Gives an office the word processor's objects and answers, below a root called "Application".
void teach_word(FakeOffice& office);

// "Word.Application", with as much of the object model behind it as the members use.
class FakeWord final : public FakeApplication {
 public:
  FakeWord();
};
