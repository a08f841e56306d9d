// The one exception type of the bridge: a call that did not work, as the client will see it.
#pragma once

#include <windows.h>

#include <string>

struct CallError {
  HRESULT code = E_FAIL;
  // Without a text the code itself is the call's result; with one it is the number inside EXCEPINFO.
  bool has_text = false;
  std::wstring text{};
  std::wstring source{};
};

// What a client gets once the peer is gone: the platform's "RPC server is unavailable".
inline constexpr HRESULT kPeerGone = static_cast<HRESULT>(0x800706BA);
