// What the registry of the prefix gets: the classes, and a printer that prints to PDF.
#pragma once

#include <string>
#include <vector>

// The device name of the printer whose output the peer writes as PDF.
inline constexpr const wchar_t* kPdfPrinter = L"ZORBOffice PDF";

// Writes the classes for the whole machine, served by this program in front of the peer at `port`, and the
// printer. False when a value cannot be written; what was written by then is removed again.
bool register_server(unsigned short port);

// Removes what register_server wrote; what is not there is no failure.
void unregister_server();

// The device names of the local printers as any program of the prefix sees them.
std::vector<std::wstring> local_printers();
