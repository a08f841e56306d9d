// An object's type information as it hands it out: every question is counted, and answered by the platform.
#pragma once

#include "bench/com_object.h"
#include "bench/office.h"

namespace bench {

// Waits until a call that began then has taken the time that is set.
void take_time(unsigned long long begin);

// Counts and delays one question, and passes its answer on.
template <class Ask>
auto question(const Ask& ask) {
  const auto begin = ticks();
  InterlockedIncrement(&settings().questions);
  const auto answer = ask();
  take_time(begin);
  return answer;
}

// Owns the platform's object.
template <class Interface>
class Counted : public ComObject<Interface> {
 public:
  explicit Counted(Interface* own) : own_(own) {}
  ~Counted() override { own_->Release(); }

 protected:
  Interface* const own_;
};

// clang-format off
class CountedLibrary final : public Counted<ITypeLib> {
 public:
  using Counted::Counted;
  UINT STDMETHODCALLTYPE GetTypeInfoCount() override { return question([&] { return own_->GetTypeInfoCount(); }); }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT a, ITypeInfo** b) override { return question([&] { return own_->GetTypeInfo(a, b); }); }
  HRESULT STDMETHODCALLTYPE GetTypeInfoType(UINT a, TYPEKIND* b) override { return question([&] { return own_->GetTypeInfoType(a, b); }); }
  HRESULT STDMETHODCALLTYPE GetTypeInfoOfGuid(REFGUID a, ITypeInfo** b) override { return question([&] { return own_->GetTypeInfoOfGuid(a, b); }); }
  HRESULT STDMETHODCALLTYPE GetLibAttr(TLIBATTR** a) override { return question([&] { return own_->GetLibAttr(a); }); }
  HRESULT STDMETHODCALLTYPE GetTypeComp(ITypeComp** a) override { return question([&] { return own_->GetTypeComp(a); }); }
  HRESULT STDMETHODCALLTYPE GetDocumentation(INT a, BSTR* b, BSTR* c, DWORD* d, BSTR* e) override { return question([&] { return own_->GetDocumentation(a, b, c, d, e); }); }
  HRESULT STDMETHODCALLTYPE IsName(LPOLESTR a, ULONG b, BOOL* c) override { return question([&] { return own_->IsName(a, b, c); }); }
  HRESULT STDMETHODCALLTYPE FindName(LPOLESTR a, ULONG b, ITypeInfo** c, MEMBERID* d, USHORT* e) override { return question([&] { return own_->FindName(a, b, c, d, e); }); }
  void STDMETHODCALLTYPE ReleaseTLibAttr(TLIBATTR* a) override { own_->ReleaseTLibAttr(a); }
};

class CountedType final : public Counted<ITypeInfo> {
 public:
  using Counted::Counted;
  HRESULT STDMETHODCALLTYPE GetTypeAttr(TYPEATTR** a) override { return question([&] { return own_->GetTypeAttr(a); }); }
  HRESULT STDMETHODCALLTYPE GetTypeComp(ITypeComp** a) override { return question([&] { return own_->GetTypeComp(a); }); }
  HRESULT STDMETHODCALLTYPE GetFuncDesc(UINT a, FUNCDESC** b) override { return question([&] { return own_->GetFuncDesc(a, b); }); }
  HRESULT STDMETHODCALLTYPE GetVarDesc(UINT a, VARDESC** b) override { return question([&] { return own_->GetVarDesc(a, b); }); }
  HRESULT STDMETHODCALLTYPE GetNames(MEMBERID a, BSTR* b, UINT c, UINT* d) override { return question([&] { return own_->GetNames(a, b, c, d); }); }
  HRESULT STDMETHODCALLTYPE GetRefTypeOfImplType(UINT a, HREFTYPE* b) override { return question([&] { return own_->GetRefTypeOfImplType(a, b); }); }
  HRESULT STDMETHODCALLTYPE GetImplTypeFlags(UINT a, INT* b) override { return question([&] { return own_->GetImplTypeFlags(a, b); }); }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(LPOLESTR* a, UINT b, MEMBERID* c) override { return question([&] { return own_->GetIDsOfNames(a, b, c); }); }
  HRESULT STDMETHODCALLTYPE Invoke(PVOID a, MEMBERID b, WORD c, DISPPARAMS* d, VARIANT* e, EXCEPINFO* f, UINT* g) override { return question([&] { return own_->Invoke(a, b, c, d, e, f, g); }); }
  HRESULT STDMETHODCALLTYPE GetDocumentation(MEMBERID a, BSTR* b, BSTR* c, DWORD* d, BSTR* e) override { return question([&] { return own_->GetDocumentation(a, b, c, d, e); }); }
  HRESULT STDMETHODCALLTYPE GetDllEntry(MEMBERID a, INVOKEKIND b, BSTR* c, BSTR* d, WORD* e) override { return question([&] { return own_->GetDllEntry(a, b, c, d, e); }); }
  HRESULT STDMETHODCALLTYPE GetRefTypeInfo(HREFTYPE a, ITypeInfo** b) override { return question([&] { return own_->GetRefTypeInfo(a, b); }); }
  HRESULT STDMETHODCALLTYPE AddressOfMember(MEMBERID a, INVOKEKIND b, PVOID* c) override { return question([&] { return own_->AddressOfMember(a, b, c); }); }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* a, REFIID b, PVOID* c) override { return question([&] { return own_->CreateInstance(a, b, c); }); }
  HRESULT STDMETHODCALLTYPE GetMops(MEMBERID a, BSTR* b) override { return question([&] { return own_->GetMops(a, b); }); }
  HRESULT STDMETHODCALLTYPE GetContainingTypeLib(ITypeLib** library, UINT* index) override {
    const HRESULT status = question([&] { return own_->GetContainingTypeLib(library, index); });
    if (SUCCEEDED(status)) *library = new CountedLibrary(*library);
    return status;
  }
  void STDMETHODCALLTYPE ReleaseTypeAttr(TYPEATTR* a) override { own_->ReleaseTypeAttr(a); }
  void STDMETHODCALLTYPE ReleaseFuncDesc(FUNCDESC* a) override { own_->ReleaseFuncDesc(a); }
  void STDMETHODCALLTYPE ReleaseVarDesc(VARDESC* a) override { own_->ReleaseVarDesc(a); }
};
// clang-format on

}  // namespace bench
