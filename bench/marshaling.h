#pragma once

namespace bench {

// Offers the class of the proxies and stubs for dispatch interfaces to the calling apartment itself. Every
// object that goes from process to process needs one of each, and Wine reads the registry and loads the class
// anew for each, unless the process offers it; Windows remembers it. Without it that would be most of what a
// call takes.
void keep_proxies_and_stubs_at_hand();

}  // namespace bench
