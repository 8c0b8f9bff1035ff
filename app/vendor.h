#pragma once

/// Who makes the program. The addresses are reserved examples until the vendor gives its own.
namespace vendor {

inline constexpr char organisation[] = "Sorvane";
inline constexpr char organisationDomain[] = "sorvane.example";
inline constexpr char site[] = "https://sorvane.example/";
inline constexpr char manual[] = "https://sorvane.example/sorvane-manual.pdf";
inline constexpr char facebook[] = "https://facebook.example/sorvane";
inline constexpr char youtube[] = "https://youtube.example/sorvane";

} // namespace vendor
