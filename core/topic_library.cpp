// Topic files in and out of the record.
#include "core/topic_library.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "core/files.h"
#include "core/guard.h"
#include "core/text_rules.h"
#include "core/texts.h"

namespace quillor {

namespace fs = std::filesystem;

namespace {

// Lines divided by full stops.
constexpr TextPair kDemoTopic{
    u"FRASES DE MUESTRA [español].danza.lobo.naruto.saturno.cromosoma.violeta.pollo frito.tacos."
    u"sushi.maestro.aladino.béisbol.iguanodon.ozono.dinero.lavadora.aluminio.kelloggs.jalisco."
    u"newton.jazmín.antofobia.mango.jazz.melodrama.sismo.adverbio.harina.grillo.piano.buscador."
    u"brújula.póquer.cine.coseno.morse.tren.tsunami.hígado.austria.despacho.teclado.espalda."
    u"cactus.turismo.disolución.zapato.cinética.programa.berro",
    u"SAMPLE PHRASES.dance.wolf.naruto.saturn.chromosome.violet.fried chicken.tacos.sushi.teacher."
    u"aladdin.baseball.iguanodon.ozone.Money.washing machine.aluminum.kelloggs.nevada.newton."
    u"jasmine.antophobia.mango.jazz.melodrama.earthquake.adverb.flour.cricket.piano.finder."
    u"compass.poker.cinema.coseno.morse.train.tsunami.liver.austria.dispatch.keyboard.back."
    u"cactus.tourism.dissolution.shoe.kinetics.program.watercress"};

std::vector<Text> splitAtStops(TextView text) {
    std::vector<Text> parts;
    for (;;) {
        const std::size_t stop = text.find(u'.');
        parts.emplace_back(text.substr(0, stop));
        if (stop == TextView::npos)
            return parts;
        text.remove_prefix(stop + 1);
    }
}

// Every topic has a number of 16 bits, from 0 on.
constexpr std::size_t kMostTopics = 32'768;

struct ListedFile {
    Text sortName;
    fs::path name;
};

}  // namespace

Place topicFolder(const GameSettings& settings, const Place& programFolder) {
    return programFolder / (settings.gbEnglish ? "Topics" : "Temas");
}

std::vector<Place> topicFiles(const Place& folder) {
    std::vector<ListedFile> listed;
    for (const Disk::Entry& entry : folder.disk().list(folder)) {
        Text sortName = upperCase(fromPath(entry.name));
        if (sortName.ends_with(u".TXT") && entry.kind == Disk::Kind::File)
            listed.push_back({std::move(sortName), entry.name});
    }
    std::sort(listed.begin(), listed.end(), [](const ListedFile& a, const ListedFile& b) {
        return std::tie(a.sortName, a.name) < std::tie(b.sortName, b.name);
    });
    std::vector<Place> files;
    files.reserve(listed.size());
    for (const ListedFile& file : listed)
        files.push_back(folder / file.name);
    return files;
}

void eWriteDemoTopic(const GameSettings& settings, const Place& programFolder) {
    quietly("eWriteDemoTopic", [&] {
        writeNewLines(topicFolder(settings, programFolder) / "DEMO.txt",
                      splitAtStops(eLang(settings, kDemoTopic)));
    });
}

ParsedTopic parseTopic(std::string_view bytes) {
    const SplitLines split = splitLines(bytes, kTopicLines);
    ParsedTopic parsed;
    parsed.tooLong = split.more;
    parsed.lines = static_cast<int>(split.lines.size());
    std::transform(split.lines.begin(), split.lines.end(), parsed.topic.begin(),
                   [](const Text& line) { return upperCase(line); });
    return parsed;
}

void eLoadWords(GameSettings& settings, const Place& programFolder) {
    std::vector<Place> files;
    quietly("eLoadWords", [&] { files = topicFiles(topicFolder(settings, programFolder)); });
    if (files.size() > kMostTopics)
        files.erase(files.begin() + kMostTopics, files.end());
    settings.giTopicMax = static_cast<std::int16_t>(static_cast<int>(files.size()) - 1);
    settings.gaTopicLines.resize(files.size());
    quietly("eLoadWords", [&] {
        for (std::size_t i = 0; i < files.size(); ++i) {
            ParsedTopic parsed = parseTopic(readFileStart(files[i], kTopicLines));
            settings.gaTopicLines[i] = std::move(parsed.topic);
            if (parsed.tooLong)
                return;
        }
    });
}

Text topicTitle(const Topic& topic) {
    return trimmed(replaceAll(upperCase(topic[0]), texts::kSpanishTag, u""));
}

}  // namespace quillor
