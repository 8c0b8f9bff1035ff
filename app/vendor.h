#pragma once

/// Who makes the program. The addresses are reserved examples until the vendor gives its own.
namespace vendor {

inline constexpr char organisation[] = "Sorvane";
inline constexpr char organisationDomain[] = "sorvane.example";
inline constexpr char site[] = "https://sorvane.example/";

} // namespace vendor
