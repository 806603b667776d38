// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// Which files are offered where one is chosen, as a `FileChoice` has it.
namespace file_kind {
inline constexpr const char* sounds = "Audio Files (*.wav)|*.wav";
inline constexpr const char* programs = "Program Files (*.exe;*.bat;*.vbs)|*.exe;*.bat;*.vbs";
inline constexpr const char* certificates = "Certificates (*.pem;*.crt;*.cer)|*.pem;*.crt;*.cer";
}  // namespace file_kind

}  // namespace tarnwick
