// The JSON of the line to the peer.
#pragma once

#include <nlohmann/json.hpp>

using Json = nlohmann::json;
