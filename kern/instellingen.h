#pragma once
// The settings store's groups and keys, in one place. Each owner reads its
// keys when it is created and writes them back when it is destroyed; the
// defaults live beside the owner's read (runtime values such as the home
// directory) or in the template table (sjablonen.h).

namespace instelling {

// Groups (absolute paths).
inline constexpr const char* GebruikersInstellingen = "/Gebruikersinstellingen";
inline constexpr const char* Venster = "/Gebruikersinstellingen/Venster";
inline constexpr const char* Operationeel = "/Operationeel";
inline constexpr const char* EersteKeer = "/Operationeel/EersteKeer";
inline constexpr const char* Statistiek = "/Statistiek";
inline constexpr const char* Configuratie = "/Configuratie";

// "/Gebruikersinstellingen"
inline constexpr const char* Encoding = "Encoding";
inline constexpr const char* ToonHulpToolTipsPad = "/Gebruikersinstellingen/toonHulptoolTips";
inline constexpr const char* EncodingPad = "/Gebruikersinstellingen/Encoding";
// "/Gebruikersinstellingen/Venster"
inline constexpr const char* GrootteX = "GrootteX";
inline constexpr const char* GrootteY = "GrootteY";
inline constexpr int StandaardGrootteX = 800;
inline constexpr int StandaardGrootteY = 600;
// "/Operationeel"
inline constexpr const char* LaatsteDataPad = "LaatsteDataPad";
inline constexpr const char* EigenHerstartPad = "/Operationeel/EigenHerstart";
inline constexpr const char* TaalGekozenPad = "/Operationeel/EersteKeer/TaalGekozen";
// "/Statistiek"
inline constexpr const char* StartDatum = "StartDatum";
inline constexpr const char* StartTijd = "StartTijd";
inline constexpr const char* StopDatum = "StopDatum";
inline constexpr const char* StopTijd = "StopTijd";
inline constexpr const char* OS = "OS";
inline constexpr const char* DatumVorm = "%Y-%m-%d";
inline constexpr const char* TijdVorm = "%H:%M:%S";

// "/Configuratie", in the order the main window reads and writes them.
inline constexpr const char* DirPad = "DirPad";
inline constexpr const char* UitvoerDirPad = "UitvoerDirPad";
inline constexpr const char* Projektnaam = "Projektnaam";
inline constexpr const char* Projektsoort = "Projektsoort";
inline constexpr const char* Projekttype = "Projekttype";
inline constexpr const char* Biebtype = "Biebtype";
inline constexpr const char* BestandNaamTekst = "BestandNaamTekst";
inline constexpr const char* VoegToeMethode = "VoegToeMethode";
inline constexpr const char* CMakeSubDirPad = "CMakeSubDirPad";
inline constexpr const char* CMakeIncludeDirPad = "CMakeIncludeDirPad";
inline constexpr const char* KopieerrechtMededeling = "KopieerrechtMededeling";
inline constexpr const char* ProjektKommando = "ProjektKommando";
inline constexpr const char* CCProjektKommando = "CCProjektKommando";
inline constexpr const char* BiebLibNaam = "BiebLibNaam";
inline constexpr const char* BiebIncludeNaam = "BiebIncludeNaam";
inline constexpr const char* BiebKommando = "BiebKommando";
inline constexpr const char* DynBiebKommando = "DynBiebKommando";
inline constexpr const char* ObjektBiebKommando = "ObjektBiebKommando";
inline constexpr const char* IncludeKommando = "IncludeKommando";
inline constexpr const char* AutoDirToewijzing = "AutoDirToewijzing";
inline constexpr const char* VoegCBestandenToe = "VoegCBestandenToe";
inline constexpr const char* VoegCPPBestandenToe = "VoegCPPBestandenToe";
inline constexpr const char* VoegHBestandenToe = "VoegHBestandenToe";
inline constexpr const char* VoegSBestandenToe = "VoegSBestandenToe";
inline constexpr const char* UitsluitTerm = "UitsluitTerm";

inline constexpr const char* StandaardBestandNaam = "CMakeLists.txt";
inline constexpr const char* StandaardUitsluitTerm = "template";
inline constexpr const char* StandaardProjektnaam = "MyFirstProject"; // translated where read

} // namespace instelling
