// The office suite as a recording fake, with the one object of the word processor that comes with it.
#pragma once

#include "fake_application.h"

// The service manager's class and the word processor's class Global in this apartment, under no name. The
// service manager is called "Application", and it and the document "Document" answer the word processor's
// members too: what the two controls share must leave the same log.
struct FakeSuiteClasses : FakeOffice {
  FakeSuiteClasses();

 private:
  FakeClass manager_, global_;
};

// The same as "com.sun.star.ServiceManager".
class FakeSuite final : public FakeSuiteClasses {
 public:
  FakeSuite();

 private:
  FakeProgramId name_;
};
