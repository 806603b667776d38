// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// The product's home page: in the mails it sends, as the sample address of a test alert, and where its logo leads.
inline constexpr const char* kProductHomePage = "https://www.tarnwick.example/";

/// The database in the program folder.
inline constexpr const char* kDatabaseFile = "tarnwick.mdb";

}  // namespace tarnwick
