// What registration and the manifest both say of the library and its classes.
#pragma once

#include <windows.h>
#include <oaidl.h>
#include <ole2.h>

namespace zorboffice {

// A class's program identifier is this prefix and the class's name; the one that names a version has the
// suffix too.
inline constexpr wchar_t program_id_prefix[] = L"ZORBOffice.";
inline constexpr wchar_t program_id_version[] = L".1";

inline constexpr wchar_t threading_model[] = L"Apartment";

// OLEMISC flags of the content; the other aspects have none.
inline constexpr DWORD misc_status = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT |
                                     OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST;

inline constexpr WORD type_library_flags = LIBFLAG_FCONTROL;

// The platform's own marshallers, of dual interfaces (PSOAInterface) and of dispatch interfaces (PSDispatch).
inline constexpr wchar_t dual_marshaller[] = L"{00020424-0000-0000-C000-000000000046}";
inline constexpr wchar_t dispatch_marshaller[] = L"{00020420-0000-0000-C000-000000000046}";

}  // namespace zorboffice
