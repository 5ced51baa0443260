// What is found in topics, and what is said of it.
#include "topics/topic_check.h"

#include <gtest/gtest.h>

#include "core/files.h"
#include "core/text_codec.h"
#include "tests/support/temp_folder.h"

namespace quillor::testing {
namespace {

constexpr const char* kSound = "BIRDS\r\nrobin\r\nbarn owl\r\n";

// The findings of a topic, each as "LINE: text".
std::vector<std::string> found(std::string_view bytes, bool english = true,
                               std::optional<bool> spanish = false) {
    std::vector<std::string> lines;
    for (const Finding& finding : checkTopic(bytes, spanish, english))
        lines.push_back(std::to_string(finding.line) + ": " + toUtf8(finding.text));
    return lines;
}

std::string numbered(int phrases) {
    std::string bytes = "TITLE\r\n";
    for (int i = 1; i <= phrases; ++i)
        bytes += "phrase " + std::to_string(i) + "\r\n";
    return bytes;
}

using Lines = std::vector<std::string>;

TEST(TopicCheck, FindsNothingInASoundTopic) {
    EXPECT_EQ(found(kSound), Lines());
    EXPECT_EQ(found("AVES [espa\xF1ol]\r\nb\xFAho real\r\ncig\xFC"
                    "e\xF1"
                    "a\r\n",
                    false, true),
              Lines());
    EXPECT_EQ(found(numbered(50)), Lines());
}

// A topic with one fault, and what is found in both languages.
struct Fault {
    const char* name;
    std::string bytes;
    std::string spanish;
    std::string english;
    bool harmful = false;
};
void PrintTo(const Fault& fault, std::ostream* out) {
    *out << fault.name;
}

class TopicFault : public ::testing::TestWithParam<Fault> {};

TEST_P(TopicFault, IsToldInBothLanguages) {
    EXPECT_EQ(found(GetParam().bytes, false), Lines{GetParam().spanish});
    EXPECT_EQ(found(GetParam().bytes, true), Lines{GetParam().english});
}

TEST_P(TopicFault, IsHarmfulWhereTheGameCannotPlay) {
    EXPECT_EQ(checkTopic(GetParam().bytes, false, true).at(0).harmful, GetParam().harmful);
}

const Fault kFaults[] = {
    {"NoText",
     std::string("\xFF\xFE"
                 "B\0I\0R\0",
                 8),
     "1: no es un texto, o es uno en UTF-16: el juego mostrará signos sin sentido; guárdalo como "
     "UTF-8",
     "1: is no text, or one in UTF-16: the game will show signs without a meaning; save it as "
     "UTF-8",
     true},
    {"WrongEncoding", "T\r\nuno\r\nni\xC3\xB1o\r\n\xE1rbol\r\n",
     "3: «Ã±» parece una letra mal codificada: el juego la mostrará así; guarda todo el archivo "
     "como UTF-8",
     "3: \"Ã±\" looks like a letter in the wrong encoding: the game will show it so; save the "
     "whole file as UTF-8"},
    {"Control", "T\r\nuno\r\ndos\ttres\r\n",
     "3: codificación dudosa, hay un signo que no se ve (U+0009): la frase no se podrá completar "
     "con letras",
     "3: doubtful encoding, there is a sign that is not seen (U+0009): the phrase cannot be "
     "completed by letters"},
    {"NoTitle", "\r\nuno\r\ndos\r\n", "1: falta el título: el juego mostrará (NINGÚN TEMA)",
     "1: the title is missing: the game will show (NO TOPIC)"},
    {"LongTitle", std::string(36, 'T') + "\r\nuno\r\ndos\r\n",
     "1: el título tiene más de 35 caracteres: el juego lo mostrará más pequeño",
     "1: the title has more than 35 characters: the game will show it smaller"},
    {"TooFew", "T\r\nuno\r\n",
     "1: hay menos de dos frases seguidas tras el título: el juego no dejará jugar este tema",
     "1: there are fewer than two phrases in a row behind the title: the game will not let this "
     "topic be played",
     true},
    {"TooMany", numbered(51),
     "52: es la frase 51 y sólo caben 50: aquí deja de cargar el juego, también todos los temas "
     "que siguen",
     "52: is phrase 51 and there is room for 50: here the game stops loading, all later topics "
     "too",
     true},
    {"Gap", "T\r\nuno\r\ndos\r\n\r\ntres\r\n",
     "4: línea vacía: las frases que siguen no saldrán nunca en el juego",
     "4: empty line: the phrases after it will never come up in the game"},
    {"OnlyBlanks", "T\r\nuno\r\ndos\r\n \r\n",
     "4: sólo tiene espacios: no saldrá nunca en el juego",
     "4: consists of blanks: it will never come up in the game"},
    {"NoKey", "T\r\nuno\r\nya, dos\r\n",
     "3: ninguna tecla ofrece «,»: la frase no se podrá completar con letras",
     "3: no key offers \",\": the phrase cannot be completed by letters"},
    {"Cut", "T\r\nuno\r\ndoce casillas menos una parte de otra fila mas\r\n",
     "3: no cabe en las tres filas de catorce casillas: el juego la recortará",
     "3: does not fit into the three rows of fourteen cells: the game will cut it"},
    {"LongWord", "T\r\nuno\r\nla otorrinolaringologia\r\n",
     "3: «OTORRINOLARINGOLOGIA» no cabe en una fila de catorce casillas: el juego la partirá",
     "3: \"OTORRINOLARINGOLOGIA\" does not fit into a row of fourteen cells: the game will break "
     "it"},
    {"EndBlanks", "T\r\nuno\r\ndos \r\n",
     "3: los espacios del principio o del final son parte de la respuesta: quien la escriba sin "
     "ellos perderá",
     "3: blanks at the start or the end belong to the answer: whoever types it without them will "
     "lose"},
    {"ManyBlanks", "T\r\nuno\r\ndos  tres\r\n",
     "3: tiene espacios seguidos, que son parte de la respuesta: quien la escriba con uno solo "
     "perderá",
     "3: has blanks in a row, which belong to the answer: whoever types it with one alone will "
     "lose"},
    {"Twice", "T\r\nuno\r\ndos\r\nUno\r\n",
     "4: ya está en la línea 2: saldrá con más frecuencia que las demás",
     "4: is on line 2 already: it will come up more often than the others"},
    {"TwiceFolded", "T\r\npapa\r\ndos\r\npap\xE1\r\n",
     "4: sólo difiere de la línea 2 en tildes: en el juego son la misma respuesta",
     "4: differs from line 2 in accents alone: in the game both are the same answer"},
    {"LineEnd", "T\r\nuno\ndos\n",
     "2: el fin de línea no es CR LF: el juego lo lee igual, pero otros programas quizá no",
     "2: the line end is not CR LF: the game reads it all the same, but other programs may not"},
};
INSTANTIATE_TEST_SUITE_P(Kinds, TopicFault, ::testing::ValuesIn(kFaults),
                         [](const auto& fault) { return fault.param.name; });

TEST(TopicCheck, WantsTheMarkOfSpanishTopics) {
    const Lines missing{
        "1: el título no termina en [español]: el juego lo carga igual, pero nadie verá en qué "
        "idioma está"};
    EXPECT_EQ(found("AVES\r\nuno\r\ndos\r\n", false, true), missing);
    EXPECT_EQ(found("AVES\r\nb\xFAho\r\ndos\r\n", false, std::nullopt), missing);
    EXPECT_EQ(found("AVES\r\nuno\r\ndos\r\n", false, std::nullopt), Lines());
    EXPECT_EQ(found("AVES\r\nuno\r\ndos\r\n", true, true),
              Lines{"1: the title does not end in [español]: the game loads it all the same, but "
                    "nobody will see what language it is in"});
}

TEST(TopicCheck, NamesTheSignsOfAPhraseOnceEach) {
    EXPECT_EQ(found("T\r\nuno\r\n\xBFqui\xE9n? \xBFyo?\r\n"),
              Lines{"3: no key offers \"¿?\": the phrase cannot be completed by letters"});
}

TEST(TopicCheck, CountsAPhraseWithoutBlanksThatTheBoardEnds) {
    EXPECT_EQ(found("T\r\nuno\r\n" + std::string(43, 'a') + "\r\n").size(), 2U);
    EXPECT_EQ(found("T\r\nuno\r\n" + std::string(42, 'a') + "\r\n").size(), 1U);
}

TEST(TopicCheck, TakesNoEmptyLinesAtTheEndForAGap) {
    EXPECT_EQ(found("T\r\nuno\r\ndos\r\n\r\n\r\n"), Lines());
}

TEST(TopicCheck, GoesThroughTheLinesInTheirOrder) {
    const auto findings = checkTopic("\r\nuno\r\ndos!\r\ntres\n", false, true);
    ASSERT_EQ(findings.size(), 3U);
    EXPECT_EQ(findings[0].line, 1);
    EXPECT_EQ(findings[1].line, 3);
    EXPECT_EQ(findings[2].line, 4);
}

class TopicFiles : public ::testing::Test {
  protected:
    TopicReport check(std::initializer_list<const char*> names) {
        std::vector<Place> places;
        for (const char* name : names)
            places.emplace_back(folder / name);
        return checkTopics(places, true);
    }
    // As it is named when its folder was given.
    std::string inTopics(const char* name) { return toUtf8(fromPath(folder / "Topics" / name)); }
    TempFolder folder;
};

TEST_F(TopicFiles, AreWellWithoutAFinding) {
    folder.write("Topics/a.txt", kSound);
    const TopicReport report = check({"Topics"});
    EXPECT_TRUE(report.found.empty());
    EXPECT_EQ(report.exitCode(), 0);
}

TEST_F(TopicFiles, AreNamedWithTheLine) {
    folder.write("Topics/a.txt", "A\r\nuno\r\ndos!\r\n");
    const TopicReport report = check({"Topics/a.txt"});
    ASSERT_EQ(report.found.size(), 1U);
    EXPECT_TRUE(toUtf8(report.found[0])
                    .starts_with(toUtf8(fromPath(folder / "Topics/a.txt")) + ":3: no key offers"));
    EXPECT_EQ(report.exitCode(), 1);
}

TEST_F(TopicFiles, AreComparedWithinTheirFolderByFolding) {
    folder.write("Topics/a.txt", "A\r\npiano\r\nouter caf\xE9\r\n");
    folder.write("Topics/b.txt", "B\r\nouter cafe\r\nharp\r\n");
    folder.write("Otros/c.txt", "C\r\npiano\r\nharp\r\n");
    const TopicReport report = check({"Topics", "Otros"});
    ASSERT_EQ(report.found.size(), 1U);
    EXPECT_EQ(toUtf8(report.found[0]), inTopics("b.txt") + ":2: is also in " + inTopics("a.txt") +
                                           ":3: it will come up in both topics");
    const TopicReport spanish = checkTopics({folder / "Topics"}, false);
    ASSERT_EQ(spanish.found.size(), 1U);
    EXPECT_TRUE(toUtf8(spanish.found[0]).ends_with(":3: saldrá en los dos temas"));
}

TEST_F(TopicFiles, AreSpanishInTheFolderOfThatLanguage) {
    folder.write("Temas/a.txt", kSound);
    EXPECT_EQ(check({"Temas"}).found.size(), 1U);
    EXPECT_EQ(check({"Temas/a.txt"}).found.size(), 1U);
}

TEST_F(TopicFiles, AreCheckedOnceEach) {
    folder.write("Topics/a.txt", kSound);
    EXPECT_EQ(check({"Topics", "Topics/a.txt"}).exitCode(), 0);
}

TEST_F(TopicFiles, ThatCannotBeReadAreSaidAndOthersStillChecked) {
    folder.write("Topics/a.txt", "A\r\nuno\r\ndos!\r\n");
    std::filesystem::create_directory(folder / "empty");
    const TopicReport report = check({"none.txt", "empty", "Topics"});
    EXPECT_EQ(report.unread.size(), 2U);
    EXPECT_EQ(report.found.size(), 1U);
    EXPECT_EQ(report.exitCode(), 2);
}

}  // namespace
}  // namespace quillor::testing
