// Topic files in and out of the record.
#include "core/topic_library.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "core/files.h"
#include "core/guard.h"
#include "core/numbers.h"
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

struct ListedFile {
    Text sortName;
    fs::path path;
    auto operator<=>(const ListedFile&) const = default;
};

}  // namespace

fs::path topicFolder(const GameSettings& settings, const fs::path& programFolder) {
    return programFolder / (settings.gbEnglish ? "Topics" : "Temas");
}

std::vector<fs::path> topicFiles(const fs::path& folder) {
    std::vector<ListedFile> listed;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        Text sortName = upperCase(fromPath(entry->path().filename()));
        std::error_code unknown;
        if (sortName.ends_with(u".TXT") && entry->is_regular_file(unknown))
            listed.push_back({std::move(sortName), entry->path()});
    }
    std::sort(listed.begin(), listed.end());
    std::vector<fs::path> files;
    files.reserve(listed.size());
    for (ListedFile& file : listed)
        files.push_back(std::move(file.path));
    return files;
}

void eWriteDemoTopic(const GameSettings& settings, const fs::path& programFolder) {
    quietly("eWriteDemoTopic", [&] {
        writeLines(topicFolder(settings, programFolder) / "DEMO.txt",
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

void eLoadWords(GameSettings& settings, const fs::path& programFolder) {
    quietly("eLoadWords", [&] {
        const std::vector<fs::path> files = topicFiles(topicFolder(settings, programFolder));
        settings.giTopicMax = toInteger(static_cast<double>(files.size()) - 1);
        settings.gaTopicLines.resize(files.size());
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
