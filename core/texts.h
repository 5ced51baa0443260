// Every text that the program shows, in Spanish and in English, in one place.
//
// "&" marks the access key of the letter behind it, "&&" shows one "&". Blanks
// at the ends of tool tips are part of the text. Where the two languages differ
// in form (a missing blank, a colon), that is how they are meant to be.
#pragma once

#include <array>

#include "core/game_settings.h"
#include "core/types.h"

namespace quillor {

/// One text in both languages.
struct TextPair {
    TextView spanish;
    TextView english;
};

/// Chooses by the interface language, at the moment the text is shown.
inline Text eLang(const GameSettings& settings, TextView spanish, TextView english) {
    return Text(settings.gbEnglish ? english : spanish);
}
inline Text eLang(const GameSettings& settings, const TextPair& pair) {
    return eLang(settings, pair.spanish, pair.english);
}

namespace texts {

inline constexpr TextView kProgramName = u"Quillor";
inline constexpr TextView kMakers = u"Quillor developers";
inline constexpr TextView kDisplayFont = u"Arial Rounded MT Bold";

// Dialog buttons.
inline constexpr TextPair kYes{u"&Sí", u"&Yes"};
inline constexpr TextPair kNo{u"&No", u"&No"};
inline constexpr TextPair kAccept{u"Aceptar", u"OK"};
inline constexpr TextPair kCancel{u"Cancelar", u"Cancel"};

// Start screen.
inline constexpr TextPair kFontMissing{
    u"La fuente 'Arial Rounded MT Bold' no está instalada en la PC.",
    u"The 'Arial Rounded MT Bold' font is not installed on this PC."};
inline constexpr TextPair kSearchFont{u"BUSCAR &FUENTE", u"SEARCH &FONT"};
inline constexpr TextPair kOpenFont{u"ABRIR FUENTE", u"OPEN &FONT"};
inline constexpr TextPair kRebootGame{u"&REINICIAR JUEGO", u"&REBOOT ALL"};
inline constexpr TextPair kCloseTip{u" Cerrar ", u" Close "};

// Main menu.
inline constexpr TextPair kMenuTitle{u"Quillor | Inicio", u"Quillor | Start"};
inline constexpr TextPair kMenuHeading{u"INICIO", u"START"};
struct MenuOption {
    TextPair caption;
    TextPair tip;
};
inline constexpr std::array<MenuOption, 4> kMenuOptions{{
    {{u"MODO &ARCADE", u"&ARCADE MODE"},
     {u" Jugar con temas guardados en el juego ", u" Play with saved topics in the game "}},
    {{u"MODO &CLÁSICO", u"&CLASSIC MODE"},
     {u" Jugar con temas improvisados por el usuario ",
      u" Playing with improvised topics by the user "}},
    {{u"&INVENTOR", u"&INVENTOR"},
     {u" Crea nuevos temas para jugar en el modo arcade ",
      u" Create new topics to play in arcade mode "}},
    {{u"AJU&STES", u"&SETTING"},
     {u" Cambiar preferencias del juego ", u" Change game preferences "}},
}};

// Game screen: what stands on it.
inline constexpr TextPair kGreeting{u"¡Hola, jugador! ¡Bienvenido a Quillor!",
                                    u"Hey, player! Welcome to Quillor!"};
inline constexpr std::array<TextPair, 6> kMistakeTips{{
    {u" Primer error ", u" First mistake "},
    {u" Segundo error ", u" Second mistake "},
    {u" Tercer error ", u" Third mistake "},
    {u" Cuarto error ", u" Fourth mistake "},
    {u" Quinto error ", u" Fifth mistake "},
    {u" Sexto error ", u" Sixth mistake "},
}};
inline constexpr TextPair kBonus{u"BONO DEL 50% CONSEGUIDO", u"50% BONUS ACHIEVED"};
inline constexpr TextPair kModeTip{u" Modo ", u" Mode "};
inline constexpr TextPair kScoreTip{u" Puntos ", u" Score "};
inline constexpr TextPair kFinder{u"¿QUÉ ES ESO&?", u"WHAT IS THAT&?"};
inline constexpr TextPair kFinderTip{u" Buscar en internet ", u" Search the internet "};
inline constexpr TextPair kNoTopicShown{u"(TEMA)", u"(TOPIC)"};
inline constexpr TextPair kNewGame{u"NUEVA PARTIDA", u"NEW GAME"};
inline constexpr TextPair kStatusTip{u" Estado actual ", u" Actual status "};
inline constexpr TextPair kTopicTip{u" Tema ", u" Topic "};
inline constexpr TextPair kTimeTip{u" Tiempo ", u" Time "};
inline constexpr TextPair kPlay{u"JUGAR", u"PLAY"};
inline constexpr TextPair kPlayAnother{u"OTRA PARTIDA", u"PLAY ANOTHER"};
inline constexpr TextPair kPlayTip{u" Iniciar o detener partida ", u" Start or stop game "};
inline constexpr TextPair kNumbersTip{u" Números ", u" Numbers "};
inline constexpr TextPair kWriteTip{u" Escribir respuesta ", u" Write answer "};
inline constexpr TextPair kWrite{u"ESCRIBIR", u"WRITE"};
inline constexpr TextPair kArcadeMode{u"MODO ARCADE", u"ARCADE MODE"};
inline constexpr TextPair kClassicMode{u"MODO CLÁSICO", u"CLASSIC MODE"};
inline constexpr TextPair kDead{u"¡MUERTO!", u"DEAD!"};
inline constexpr TextPair kVictory{u"¡VICTORIA!", u"VICTORY!"};
/// The status line while playing, in the order it steps through.
inline constexpr std::array<TextPair, 4> kPlaying{{
    {u"JUGANDO", u"PLAYING"},
    {u". JUGANDO .", u". PLAYING ."},
    {u".. JUGANDO ..", u".. PLAYING .."},
    {u"... JUGANDO ...", u"... PLAYING ..."},
}};
inline constexpr TextPair kScore{u"PUNTOS/ ", u"SCORE/ "};
inline constexpr TextPair kZeroScore{u"SIN PUNTOS/ 0", u"ZERO SCORE/ 0"};
inline constexpr TextPair kInfiniteScore{u"PUNTOS INFINITOS", u"INFINITE SCORE"};
inline constexpr TextPair kSoundsOnTip{u" Sonidos activados ", u" Sounds on "};
inline constexpr TextPair kSoundsOffTip{u" Sonidos activados ", u" Sounds off "};
inline constexpr std::array<TextPair, 10> kTips{{
    {u"¡Salva al ahorcado con tus habilidades!", u"Save the hangman with your skills!"},
    {u"Cada ahorcado, cada familia sin un padre de palitos. ¡Sálvalo!",
     u"Every hangman, every stick figure family without a father. Save him!"},
    {u"Veintisiete letras, diez números, ¡decide bien!",
     u"Twenty-seven letters, ten numbers, decide well!"},
    {u"Juega con temas ilimitados, ¡hasta 50 frases en cada uno!",
     u"Play with unlimited topics, up to 50 phrases in each!"},
    {u"Experimenta y juega con diferentes opciones, ¡te gustará!",
     u"Experience and play with different options, you'll like it!"},
    {u"¿Muy fácil? Intenta jugar con letras ocultas.",
     u"Too easy? Try to play with hidden letters."},
    {u"Reta a tus amigos; ¡a un oponente digno!", u"Challenge your friends; a worthy opponent!"},
    {u"¡Quillor trae diferentes experiencias a intentar!",
     u"Quillor brings different experiences to try!"},
    {u"¡Consigue todos los puntos que puedas! ¡Supérate!",
     u"Get as many points as you can! Get over it!"},
    {u"Si haces trampa te engañas a ti mismo.", u"If you cheat, you fool yourself."},
}};

// Game screen: pieces of the title.
inline constexpr TextView kTitleStart = u"Quillor | ";
inline constexpr TextPair kTitleHard{u" [Difícil]", u" [Hard]"};
inline constexpr TextPair kTitleTime{u" [Tiempo]", u" [Time]"};
inline constexpr TextPair kTourPosition{u"Turista ", u"Tour "};
inline constexpr TextPair kTourOf{u" de ", u"/"};

// Game screen: menu.
inline constexpr TextPair kMenuName{u"Menú", u"Menu"};
inline constexpr TextPair kMenuBack{u"Volver a Inicio", u"Back to Start"};
inline constexpr TextPair kMenuReboot{u"Reiniciar juego", u"Reboot all"};
inline constexpr TextPair kMenuSelection{u"Selección", u"Selection"};
inline constexpr TextPair kMenuManual{u"Manual", u"Manual"};
inline constexpr TextPair kMenuRepeat{u"Repetición", u"Repeat"};
inline constexpr TextPair kMenuTour{u"Turista", u"Tour"};
inline constexpr TextPair kMenuAnyTopic{u"Aleatorio", u"Any topic"};
inline constexpr TextPair kMenuHidden{u"Oculto", u"Hidden"};
inline constexpr TextPair kMenuWrite{u"Escribir respuesta", u"Write answer"};
inline constexpr TextPair kMenuSounds{u"Mostrar sonidos", u"Use sounds"};
inline constexpr TextPair kMenuFirstLetter{u"Primera letra", u"First letter"};
inline constexpr TextPair kMenuHiddenLetters{u"Letras ocultas", u"Hidden letters"};
inline constexpr TextPair kMenuColors{u"Colores suaves", u"Color transition"};
inline constexpr TextPair kMenuAbout{u"Acerca", u"About"};
inline constexpr TextPair kMenuHelp{u"Ayuda", u"Help"};
inline constexpr TextPair kVersion{u": Versión ", u": Version "};

// Game screen: messages and questions.
inline constexpr TextPair kPhraseCut{u"¡Hasta al tope! La frase ha sido muy larga y fue recortada.",
                                     u"Up to the top! The phrase has been very long and was cut."};
inline constexpr TextPair kNoTopics{
    u"No hay palabras para jugar aquí. Trae archivos con palabras a la carpeta 'Temas' del juego "
    u"y reinicia.",
    u"There are no words to play here. Bring files with words to the game's 'Themes' folder and "
    u"restart."};
inline constexpr TextPair kLeaveGame{u"Estás por abandonar esta partida, ¿quieres continuar?",
                                     u"You're about to leave this game, do you want to continue?"};
inline constexpr TextPair kTooManyMistakes{
    u"Tienes muchos errores para poder abandonar la partida, continúa o reinicia el juego.",
    u"You have many mistakes to leave the game, continue or restart the game."};
inline constexpr TextPair kNoPoints{
    u"Perdiste todos tus puntos, para volver a jugar el modo arcade reinicia el juego.",
    u"You have lost all your points, to replay arcade mode restart the game."};
inline constexpr TextPair kHintTooShort{u"La frase es muy corta para ayudarte.",
                                        u"The phrase is too short to help you."};
inline constexpr TextPair kHintNone{u"No hay letras sin repetir para ayudarte.",
                                    u"No unrepeating letters to help you."};
inline constexpr TextPair kEnterAnswer{
    u"Introduce la respuesta.\r\nTen cuidado, si te equivocas es muerte rápida.",
    u"Enter the answer.\r\nBe careful, wrong is quick death."};
inline constexpr TextPair kTourCompleted{u"¡Completaste el viaje!", u"You've completed the tour!"};
inline constexpr TextPair kHelpMissing{u"El archivo de ayuda no se encuentra.",
                                       u"The help file is not found."};

// Settings screen.
inline constexpr TextPair kSettingsTitle{u"Quillor | Ajustes", u"Quillor | Setting"};
inline constexpr TextPair kSettingsTiles{u"AJUSTES", u"SETTING"};
struct SettingsOption {
    TextPair caption;
    TextPair tip;
};
inline constexpr std::array<SettingsOption, 5> kSettingsOptions{{
    {{u" DISEÑO", u" DESIGN"},
     {u" Apariencia de las letras del juego ", u" Appearance of the player's letters "}},
    {{u" USAR &WIKIPEDIA", u" USE &WIKIPEDIA"},
     {u" Abrir Wikipedia en vez de Bing ", u" Open Wikipedia instead of Bing "}},
    {{u" PUNTAJE &DIFÍCIL", u" HAR&D SCORE"},
     {u" Juega con mayor dificultad ", u" Play with more difficulty "}},
    {{u" PUNTAJE &INFINITO", u" &INFINITE SCORE"},
     {u" Juega sin preocuparte por los puntos ", u" Play without worrying about score "}},
    {{u" &CONTRA RELOJ", u" AGAINST &CLOCK"},
     {u" Juega contra reloj ", u" Play against the clock "}},
}};
inline constexpr std::array<TextPair, 4> kDesignTips{{
    {u" Tinta negra ", u" Black ink "},
    {u" Tinta azul ", u" Blue ink "},
    {u" Fondo negro ", u" Black background "},
    {u" Fondo azul ", u" Blue background "},
}};
inline constexpr TextPair kBack{u"ATRÁS", u"Back"};
inline constexpr TextPair kBackTip{u" Regresar a Inicio ", u" Return to Start "};

// The further menu of every screen, and the keys it explains.
inline constexpr TextPair kView{u"Ver", u"View"};
inline constexpr TextPair kViewTip{u" Ventana, teclas y ayuda ", u" Window, keys and help "};
inline constexpr TextPair kViewFullScreen{u"Pantalla completa", u"Full screen"};
inline constexpr TextPair kViewLanguage{u"English", u"Español"};  // the other one, by its own name
inline constexpr TextPair kAskLanguage{
    u"El juego se reinicia en inglés; si hay una partida en curso, se pierde. ¿Quieres continuar?",
    u"The game restarts in Spanish; a game that is going on is lost. Do you want to continue?"};
inline constexpr TextPair kViewKeys{u"Teclas", u"Keys"};
inline constexpr TextPair kKeysEverywhere{
    u"Tab y flechas: de un botón a otro\r\nBarra espaciadora: presionar\r\nF10 o Alt+V: este menú"
    u"\r\nF1: ayuda\r\nF11 o Alt+Intro: pantalla completa\r\nEscape: salir de la pantalla "
    u"completa; "
    u"después, regresar\r\nCtrl+Q: cerrar",
    u"Tab and arrows: from button to button\r\nSpace bar: press\r\nF10 or Alt+V: this menu\r\nF1: "
    u"help\r\nF11 or Alt+Return: full screen\r\nEscape: leave full screen; then, go back"
    u"\r\nCtrl+Q: close"};
inline constexpr TextPair kKeysMenu{
    u"A: modo arcade\r\nC: modo clásico\r\nI: inventor\r\nS: ajustes",
    u"A: arcade mode\r\nC: classic mode\r\nI: inventor\r\nS: setting"};
inline constexpr TextPair kKeysGame{
    u"Letras y números: probarlos\r\nIntro: jugar, otra partida\r\n! o Ctrl+E: escribir la "
    u"respuesta\r\n?: ¿qué es eso?, al terminar\r\nF2: volver a Inicio\r\nF3: reiniciar el "
    u"juego\r\nCtrl+M, R, T, A: selección\r\nCtrl+S: sonidos\r\nCtrl+L: primera letra\r\nCtrl+O: "
    u"letras ocultas\r\nF10 o Alt+M: menú del juego",
    u"Letters and numbers: try them\r\nReturn: play, play another\r\n! or Ctrl+E: write the "
    u"answer\r\n?: what is that?, after the game\r\nF2: back to Start\r\nF3: reboot "
    u"all\r\nCtrl+M, R, T, A: selection\r\nCtrl+S: sounds\r\nCtrl+L: first letter\r\nCtrl+O: "
    u"hidden letters\r\nF10 or Alt+M: the game's menu"};
inline constexpr TextPair kKeysSettings{
    u"W: Wikipedia\r\nD: puntaje difícil\r\nI: puntaje infinito\r\nC: contra reloj\r\n1, 2, 3, 4: "
    u"diseño\r\nRetroceso: regresar",
    u"W: Wikipedia\r\nD: hard score\r\nI: infinite score\r\nC: against the clock\r\n1, 2, 3, 4: "
    u"design\r\nBackspace: go back"};
inline constexpr TextPair kKeysPhrase{
    u"Intro: de la frase al tema; en el tema, aceptar\r\nEscape: cerrar sin jugar",
    u"Return: from the phrase to the topic; in the topic, accept\r\nEscape: close without playing"};
inline constexpr TextPair kKeysTopics{
    u"Flechas arriba y abajo: tema\r\nFlechas izquierda y derecha: selección\r\nIntro: "
    u"aceptar\r\nEscape: cerrar sin jugar",
    u"Arrows up and down: topic\r\nArrows left and right: selection\r\nReturn: accept\r\nEscape: "
    u"close without playing"};
inline constexpr TextPair kKeysInventor{
    u"Intro: del nombre a la frase; agrega la frase; en la lista, guarda\r\nSupr: quita la frase "
    u"elegida\r\nRetroceso, al principio del nombre del tema: regresar\r\n?, en el nombre del "
    u"tema: "
    u"información",
    u"Return: from the name to the phrase; adds the phrase; in the list, saves\r\nDelete: removes "
    u"the selected phrase\r\nBackspace, at the beginning of the topic name: go back\r\n?, in the "
    u"topic name: information"};

// Classic entry.
inline constexpr TextPair kEntryTitle{u"Escriba su frase y tema:", u"Write your phrase and topic:"};
inline constexpr TextPair kPhraseLabel{u"FRASE", u"PHRASE"};
inline constexpr TextPair kTopicLabel{u"TEMA", u"TOPIC"};
inline constexpr TextPair kPhraseTip{u" Frase a jugar ", u" Phrase to play "};
inline constexpr TextPair kNoTopic{u"(NINGÚN TEMA)", u"(NO TOPIC)"};
inline constexpr TextPair kOk{u"ACEPTAR", u"OK"};
inline constexpr TextPair kBadCharacters{
    u"Tu frase tiene caracteres no permitidos; sólo letras y números.",
    u"Your phrase has characters not allowed; only letters and numbers."};

// Topic selection.
inline constexpr TextPair kSelectionTitle{u"Seleccione un tema:", u"Select a topic:"};
inline constexpr TextPair kTopicsTip{u" Temas cargados en el juego ",
                                     u"Topics loaded into the game"};
inline constexpr TextPair kSelectionLabel{u"SELECCIÓN", u"SELECTION:"};
inline constexpr TextView kChangeModeTip = u" Cambiar modo de selección ";
inline constexpr std::array<TextPair, 3> kSelectionModes{{
    {u"MANUAL", u"MANUAL"},
    {u"REPETICIÓN", u"REPEAT"},
    {u"TURISTA", u"TOUR"},
}};
inline constexpr TextPair kTooFewPhrases{
    u"El tema seleccionado no tiene suficientes frases, escoge otro.",
    u"The selected topic does't have enough phrases, choose another one."};
inline constexpr TextPair kTopicsError{u"Hay un error que impide abrir los temas.",
                                       u"There is an error that prevents the topics from opening."};
inline constexpr TextPair kHiddenTopicName{u"(TEMA OCULTO)", u"(HIDDEN TOPIC)"};
inline constexpr TextView kSpanishTag = u"[ESPAÑOL]";

// Inventor.
inline constexpr TextView kInventorTitle = u"Quillor | Inventor";
inline constexpr TextPair kInventorHeading{u"INVENTOR", u"INVENTOR"};
inline constexpr TextPair kInventorHelpTip{u" Obtén algo de información ",
                                           u" Get some information "};
inline constexpr TextPair kTopicNameLabel{u"NOMBRE DEL TEMA", u"TOPIC NAME"};
inline constexpr TextPair kFileNameLabel{u"NOMBRE DEL ARCHIVO", u"FILE NAME"};
inline constexpr TextPair kAddPhrasesLabel{u"AGREGA FRASES O PALABRAS A TU NUEVO TEMA",
                                           u"ADD PHRASES OR WORDS TO YOUR NEW TOPIC"};
inline constexpr TextPair kCounterTip{u" Contador ", u" Counter "};
inline constexpr TextPair kPhraseToAddTip{u" Frase a agregar ", u" Phrase to add "};
inline constexpr TextPair kAddTip{u" Agregar a la lista ", u" Add to list "};
inline constexpr TextPair kDeleteTip{u" Remover de la lista ", u" Delete from list "};
inline constexpr TextPair kPhrasesTip{u" Presionar Intro para GUARDAR Y CREAR ",
                                      u" Press Return to SAVE & CREATE "};
inline constexpr TextPair kSave{u"GUARDAR Y CREAR", u"SAVE && CREATE"};
inline constexpr TextPair kFileNameHelp{
    u"El nombre del archivo puede ser diferente al nombre del tema, pero en este caso serán casi "
    u"idénticos.",
    u"The file name can be different from the topic name, but in this case they will be almost "
    u"identical."};
inline constexpr TextPair kBackHelp{
    u"Puedes regresar a Inicio si usas la tecla 'atrás', debes estar en 'Nombre del tema' en "
    u"posición cero.",
    u"You can return to Start if you use the 'back' key, you must be in 'Topic Name' at the zero "
    u"position."};
inline constexpr TextPair kAskRestart{u"¿Quieres reiniciar el juego para cargar el nuevo tema?",
                                      u"Do you want to restart the game to load the new topic?"};

// Progress.
inline constexpr TextPair kProgress{u"Progreso", u"Progress"};
inline constexpr TextPair kProgressTitle{u"Quillor | Progreso", u"Quillor | Progress"};
inline constexpr TextPair kProgressHeading{u"PROGRESO", u"PROGRESS"};
inline constexpr std::array<TextPair, 7> kProgressCounts{{
    {u"Partidas ganadas: ", u"Games won: "},
    {u"Partidas perdidas: ", u"Games lost: "},
    {u"Victorias seguidas: ", u"Victories in a row: "},
    {u"La racha más larga: ", u"Longest run of victories: "},
    {u"Mejor puntaje: ", u"Best score: "},
    {u"Letras probadas: ", u"Letters tried: "},
    {u"Respuestas escritas: ", u"Answers typed: "},
}};
inline constexpr TextPair kProgressNoScores{u"Aquí verás los puntos de tus partidas arcade.",
                                            u"The score of your arcade games will be here."};
inline constexpr TextPair kProgressScores{u"Puntos, partidas arcade: ", u"Score, arcade games: "};
inline constexpr TextPair kProgressFrom{u", de ", u", from "};
inline constexpr TextPair kProgressTo{u" a ", u" to "};
inline constexpr TextPair kProgressTopics{u"Frases resueltas de cada tema",
                                          u"Phrases solved of each topic"};
inline constexpr TextPair kProgressOf{u" de ", u" of "};
inline constexpr TextPair kProgressEmpty{u"VA&CIAR", u"&EMPTY"};
inline constexpr TextPair kProgressEmptyTip{u" Empezar a contar de nuevo ",
                                            u" Start counting anew "};
inline constexpr TextPair kAskEmpty{
    u"¿Quieres vaciar tu progreso? No se podrá recuperar.",
    u"Do you want to empty your progress? It cannot be brought back."};
inline constexpr TextPair kKeysProgress{
    u"Flechas arriba y abajo: tema\r\nEscape o Retroceso: regresar",
    u"Arrows up and down: topic\r\nEscape or Backspace: go back"};

// What is found in topics; the detail stands in place of "%".
inline constexpr TextPair kFlawNoText{
    u"no es un texto, o es uno en UTF-16: el juego mostrará signos sin sentido; guárdalo como "
    u"UTF-8",
    u"is no text, or one in UTF-16: the game will show signs without a meaning; save it as UTF-8"};
inline constexpr TextPair kFlawEncoding{
    u"«%» parece una letra mal codificada: el juego la mostrará así; guarda todo el archivo como "
    u"UTF-8",
    u"\"%\" looks like a letter in the wrong encoding: the game will show it so; save the whole "
    u"file as UTF-8"};
inline constexpr TextPair kFlawControl{
    u"codificación dudosa, hay un signo que no se ve (%): la frase no se podrá completar con "
    u"letras",
    u"doubtful encoding, there is a sign that is not seen (%): the phrase cannot be completed by "
    u"letters"};
inline constexpr TextPair kFlawNoTitle{u"falta el título: el juego mostrará (NINGÚN TEMA)",
                                       u"the title is missing: the game will show (NO TOPIC)"};
inline constexpr TextPair kFlawLongTitle{
    u"el título tiene más de % caracteres: el juego lo mostrará más pequeño",
    u"the title has more than % characters: the game will show it smaller"};
inline constexpr TextPair kFlawNoMark{
    u"el título no termina en [español]: el juego lo carga igual, pero nadie verá en qué idioma "
    u"está",
    u"the title does not end in [español]: the game loads it all the same, but nobody will see "
    u"what language it is in"};
inline constexpr TextPair kFlawTooFew{
    u"hay menos de dos frases seguidas tras el título: el juego no dejará jugar este tema",
    u"there are fewer than two phrases in a row behind the title: the game will not let this topic "
    u"be played"};
inline constexpr TextPair kFlawTooMany{
    u"es la frase 51 y sólo caben 50: aquí deja de cargar el juego, también todos los temas que "
    u"siguen",
    u"is phrase 51 and there is room for 50: here the game stops loading, all later topics too"};
inline constexpr TextPair kFlawGap{
    u"línea vacía: las frases que siguen no saldrán nunca en el juego",
    u"empty line: the phrases after it will never come up in the game"};
inline constexpr TextPair kFlawOnlyBlanks{u"sólo tiene espacios: no saldrá nunca en el juego",
                                          u"consists of blanks: it will never come up in the game"};
inline constexpr TextPair kFlawNoKey{
    u"ninguna tecla ofrece «%»: la frase no se podrá completar con letras",
    u"no key offers \"%\": the phrase cannot be completed by letters"};
inline constexpr TextPair kFlawCut{
    u"no cabe en las tres filas de catorce casillas: el juego la recortará",
    u"does not fit into the three rows of fourteen cells: the game will cut it"};
inline constexpr TextPair kFlawLongWord{
    u"«%» no cabe en una fila de catorce casillas: el juego la partirá",
    u"\"%\" does not fit into a row of fourteen cells: the game will break it"};
inline constexpr TextPair kFlawEndBlanks{
    u"los espacios del principio o del final son parte de la respuesta: quien la escriba sin ellos "
    u"perderá",
    u"blanks at the start or the end belong to the answer: whoever types it without them will "
    u"lose"};
inline constexpr TextPair kFlawManyBlanks{
    u"tiene espacios seguidos, que son parte de la respuesta: quien la escriba con uno solo "
    u"perderá",
    u"has blanks in a row, which belong to the answer: whoever types it with one alone will lose"};
inline constexpr TextPair kFlawTwice{
    u"ya está en la línea %: saldrá con más frecuencia que las demás",
    u"is on line % already: it will come up more often than the others"};
inline constexpr TextPair kFlawTwiceFolded{
    u"sólo difiere de la línea % en tildes: en el juego son la misma respuesta",
    u"differs from line % in accents alone: in the game both are the same answer"};
inline constexpr TextPair kFlawElsewhere{u"también está en %: saldrá en los dos temas",
                                         u"is also in %: it will come up in both topics"};
inline constexpr TextPair kFlawLineEnd{
    u"el fin de línea no es CR LF: el juego lo lee igual, pero otros programas quizá no",
    u"the line end is not CR LF: the game reads it all the same, but other programs may not"};

// What the inventor hints at while a topic is written.
inline constexpr TextPair kHintListed{u"Esa frase ya está en la lista.",
                                      u"That phrase is in the list already."};
inline constexpr TextPair kHintReplaces{u"Ya hay un archivo con ese nombre: será reemplazado.",
                                        u"There is a file of that name: it will be replaced."};
inline constexpr TextPair kHintTwoPhrases{u"El juego quiere al menos dos frases.",
                                          u"The game wants two phrases at least."};
inline constexpr TextPair kHintTooMany{
    u"Con más de 50 frases el juego deja de cargar, también los temas que siguen.",
    u"With more than 50 phrases the game stops loading, later topics too."};
inline constexpr TextPair kOpen{u"A&BRIR", u"&OPEN"};
inline constexpr TextPair kOpenTip{u" Seguir escribiendo un tema que ya existe ",
                                   u" Go on writing a topic that exists "};
inline constexpr TextPair kOpenTitle{u"Abra un tema:", u"Open a topic:"};
inline constexpr TextPair kKeysOpen{
    u"Flechas arriba y abajo: tema\r\nIntro: abrir\r\nEscape: cerrar sin abrir",
    u"Arrows up and down: topic\r\nReturn: open\r\nEscape: close without opening"};
inline constexpr TextPair kLoseTopic{
    u"Perderás las frases del tema que estás escribiendo. ¿Quieres continuar?",
    u"You will lose the phrases of the topic you are writing. Do you want to go on?"};

// Topics that others have written; the file's name stands in place of "%".
inline constexpr TextPair kShareNoTopic{u"«%» no es un tema: los temas son archivos .txt.",
                                        u"\"%\" is no topic: topics are .txt files."};
inline constexpr TextPair kShareUnread{u"No se puede leer «%».", u"\"%\" cannot be read."};
inline constexpr TextPair kShareThere{u"El juego ya tiene el tema «%».",
                                      u"The game has the topic \"%\" already."};
inline constexpr TextPair kShareRefused{u"El juego no puede usar «%»:",
                                        u"The game cannot use \"%\":"};
inline constexpr TextPair kShareFound{u"Esto hay que decir de «%»:",
                                      u"This is to be said of \"%\":"};
inline constexpr TextPair kShareLine{u"Línea ", u"Line "};
inline constexpr TextPair kShareMore{u"Y % más.", u"And % more."};
inline constexpr TextPair kShareAnyhow{u"\r\n¿Quieres copiarlo de todos modos?",
                                       u"\r\nDo you want to copy it all the same?"};
inline constexpr TextPair kShareReplace{
    u"El juego ya tiene un tema «%», distinto de éste. ¿Quieres reemplazarlo?",
    u"The game has a topic \"%\" already, which differs. Do you want to replace it?"};
inline constexpr TextPair kShareFailed{u"«%» no se pudo copiar a la carpeta de temas.",
                                       u"\"%\" could not be copied into the topic folder."};

// Spoken names: what a screen reader says of a control whose caption is a
// symbol, a field or a drawing.
inline constexpr TextPair kSpokenSounds{u"Sonidos", u"Sounds"};
inline constexpr TextPair kSpokenClose{u"Cerrar", u"Close"};
inline constexpr TextPair kSpokenBack{u"Atrás", u"Back"};
inline constexpr TextPair kSpokenHideNumbers{u"Ocultar números", u"Hide numbers"};
inline constexpr TextPair kSpokenNumbers{u"Números", u"Numbers"};
inline constexpr TextPair kSpokenTopicField{u"Tema", u"Topic"};
inline constexpr TextPair kSpokenPhraseField{u"Frase", u"Phrase"};
inline constexpr TextPair kSpokenTopicList{u"Temas", u"Topics"};
inline constexpr TextPair kSpokenPreviousMode{u"Modo de selección anterior",
                                              u"Previous selection mode"};
inline constexpr TextPair kSpokenNextMode{u"Modo de selección siguiente", u"Next selection mode"};
inline constexpr TextPair kSpokenTopicName{u"Nombre del tema", u"Topic name"};
inline constexpr TextPair kSpokenFileName{u"Nombre del archivo", u"File name"};
inline constexpr TextPair kSpokenPhraseToAdd{u"Frase a agregar", u"Phrase to add"};
inline constexpr TextPair kSpokenPhrases{u"Frases", u"Phrases"};
inline constexpr TextPair kSpokenAdd{u"Agregar", u"Add"};
inline constexpr TextPair kSpokenDelete{u"Remover", u"Delete"};
inline constexpr TextPair kSpokenHelp{u"Información", u"Information"};

// What is spoken while a game is played.
inline constexpr TextPair kSpokenFound{u": sí. ", u": yes. "};
inline constexpr TextPair kSpokenRepeated{u": ya se usó. ", u": used before. "};
inline constexpr TextPair kSpokenMistake{u": no. ", u": no. "};
inline constexpr TextPair kSpokenMistakes{u"Errores: ", u"Mistakes: "};
inline constexpr TextPair kSpokenOf{u" de ", u" of "};
inline constexpr TextPair kSpokenLetters{u"Letras: ", u"Letters: "};
inline constexpr TextPair kSpokenAnswer{u"La respuesta: ", u"The answer: "};
inline constexpr TextPair kSpokenOn{u": sí", u": on"};
inline constexpr TextPair kSpokenOff{u": no", u": off"};
inline constexpr TextPair kSpokenWay{u"Selección: ", u"Selection: "};
inline constexpr TextPair kSpokenPoints{u". Puntos de esta partida: ", u". Points of this game: "};
inline constexpr TextPair kSpokenNewScore{u". Puntaje: ", u". Score: "};
inline constexpr TextPair kSpokenBonus{u". Bono del 50%", u". 50% bonus"};
inline constexpr TextPair kSpokenMinute{u"Queda un minuto.", u"One minute left."};
inline constexpr TextPair kSpokenHalfMinute{u"Quedan 30 segundos.", u"30 seconds left."};
inline constexpr TextPair kSpokenTenSeconds{u"Quedan 10 segundos.", u"10 seconds left."};
inline constexpr TextPair kSpokenNoKey{
    u" no es una tecla del juego; sólo letras sin acento y números.",
    u" is no key of the game; only letters without accents "
    u"and numbers."};
inline constexpr TextPair kSpokenDesign{u"Diseño: ", u"Design: "};
inline constexpr TextPair kBoardName{u"Tablero: ", u"Board: "};
inline constexpr TextPair kBoardTip{u" Flechas: casilla por casilla ", u" Arrows: cell by cell "};
inline constexpr TextPair kReadBoard{u"Leer el tablero", u"Read the board"};
inline constexpr TextPair kCell{u"Casilla ", u"Cell "};
inline constexpr TextPair kCellBlank{u"espacio", u"blank"};
inline constexpr TextPair kCellHidden{u"por descubrir", u"to be found"};
inline constexpr TextPair kCellCovered{u"descubierta, oculta", u"found, hidden"};

// Of the folder that the game keeps its files in, which follows.
inline constexpr TextPair kNothingIsSaved{
    u"No se puede guardar nada en la carpeta del juego. Lo que cambies ahora se perderá al salir.",
    u"Nothing can be saved in the game's folder. What you change now is lost when you leave."};
inline constexpr TextPair kFolderIsShared{
    u"Alguien más está jugando con esta carpeta. Los ajustes serán los de quien los cambie por "
    u"último. ¿Quieres jugar también?",
    u"Somebody else is playing with this folder. The settings will be those of whoever changes "
    u"them last. Do you want to play too?"};
inline constexpr TextPair kNoAnswer{
    u"El juego ya está abierto con esta carpeta, pero no responde. ¿Quieres abrirlo otra vez?",
    u"The game is already open with this folder, but does not answer. Do you want to open it "
    u"once more?"};

// On the terminal, in the system's language.
inline constexpr TextPair kTerminalHelp{
    u"\n"
    u"El ahorcado con frases completas, en español y en inglés.\n"
    u"\n"
    u"Uso: quillor [opciones] [TEMA.txt]...\n"
    u"     quillor --check-topics [ARCHIVO o CARPETA]...\n"
    u"\n"
    u"  TEMA.txt           copia ese tema a la carpeta de temas del juego\n"
    u"  --folder CARPETA   guarda ajustes y temas en CARPETA\n"
    u"  --portable         los guarda en la carpeta del programa, aunque el juego\n"
    u"                     esté instalado para todos\n"
    u"  --language es|en   desde ahora, en español o en inglés\n"
    u"  --tour CARPETA     juega solo una partida corta y deja imágenes de ella\n"
    u"                     en CARPETA\n"
    u"  --check-topics     dice qué tienen de malo unos temas, o los del juego, sin\n"
    u"                     abrir ventanas; termina con 0 si nada, con 1 si algo y\n"
    u"                     con 2 si hay alguno que no se puede leer\n"
    u"  --version          muestra la versión y termina\n"
    u"  --help             muestra este texto y termina\n"
    u"\n"
    u"Sin --folder todo se guarda en la carpeta del programa o, si el juego está\n"
    u"instalado para todos o la carpeta protegida contra escritura, en la de datos\n"
    u"del usuario. Con un archivo English.txt en ella, el juego está en inglés.\n",
    u"\n"
    u"Hangman on whole phrases, in Spanish and English.\n"
    u"\n"
    u"Usage: quillor [options] [TOPIC.txt]...\n"
    u"       quillor --check-topics [FILE or DIR]...\n"
    u"\n"
    u"  TOPIC.txt          copy that topic into the game's topic folder\n"
    u"  --folder DIR       keep settings and topics in DIR\n"
    u"  --portable         keep them in the program's own folder, even where the game\n"
    u"                     is installed for everybody\n"
    u"  --language es|en   speak Spanish or English from now on\n"
    u"  --tour DIR         play a short game by itself and write pictures of it to DIR\n"
    u"  --check-topics     say what is wrong with topics, or with the game's own,\n"
    u"                     without a window; exit with 0 if nothing is, with 1 if\n"
    u"                     something is and with 2 if one cannot be read\n"
    u"  --version          print the version and exit\n"
    u"  --help             print this text and exit\n"
    u"\n"
    u"Without --folder everything is kept in the folder of the program itself or,\n"
    u"where the game is installed for everybody or that folder is write-protected, in\n"
    u"the user's data folder. A file English.txt in it makes the interface English.\n"};
inline constexpr TextPair kUnknownOption{u"opción desconocida: ", u"unknown option: "};
inline constexpr TextPair kUnknownLanguage{u"idioma desconocido, es o en: ",
                                           u"unknown language, es or en: "};
inline constexpr TextPair kNeedsFolder{u"falta la carpeta de la opción: ",
                                       u"a folder is missing for the option: "};
inline constexpr TextPair kNoTopicToRead{u"no se puede leer ningún tema de: ",
                                         u"no topic can be read from: "};
inline constexpr TextPair kCannotUseFolder{u"no se puede usar la carpeta ",
                                           u"cannot use the folder "};
inline constexpr TextPair kTryHelp{u" (prueba --help)", u" (try --help)"};
inline constexpr TextPair kNoDisplay{
    u"no se puede abrir ninguna pantalla (¿tiene valor DISPLAY o WAYLAND_DISPLAY?)",
    u"no display can be opened (is DISPLAY or WAYLAND_DISPLAY set?)"};

}  // namespace texts
}  // namespace quillor
