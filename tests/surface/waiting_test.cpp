// How long a step waits for an application that stays busy.
#include <gtest/gtest.h>

#include "ZORBOffice/common/automation_object.h"
#include "ZORBOffice/common/failure.h"
#include "support/fake_object.h"

TEST(Waiting, EndsAfterTenSeconds) {
  FakeOffice office;
  std::vector<DWORD> attempts;
  office.gate = [&] {
    attempts.push_back(GetTickCount());
    return RPC_E_SERVERCALL_RETRYLATER;
  };
  zorboffice::AutomationObject document;
  *document.variable() = office.make("Document");
  EXPECT_THROW(document.call(L"Save"), zorboffice::Failure);
  EXPECT_NEAR(attempts.back() - attempts.front(), 10'900, 1'000);
  EXPECT_LT(attempts[1] - attempts[0], 300U) << "the first pause is short";
  EXPECT_LT(attempts.size(), 40U) << "the others grow";
}
