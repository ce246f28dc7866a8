#include "support/random_games.h"

#include <algorithm>
#include <utility>

#include "computer/opponents.h"
#include "game/bag.h"
#include "platform/headless/headless.h"
#include "play/history.h"
#include "play/turns.h"
#include "store/preferences.h"
#include "words/dict.h"
#include "words/word_list_builder.h"

namespace quillet {
namespace {

constexpr std::string_view kWords =
    "AA AB AD AE AI AM AN AS AT BE BY DO EH EL EN ER ES EX GO HE HI HO ID IF IN IS IT JO LO MA ME MI MU MY "
    "NE "
    "NO OD OF OH ON OR OS OX PA PE PI QI RE SH SO TI TO UP US UT WE XU YE ZA ACE AGE AIR ALE ANT APE ARE ART "
    "ATE AXE BAT BEE CAT COG DEN DOG EAR EAT EEL EGG EON ERA FEE FOX GNU HAT ICE INN ION JAW KEY LEI NET OAR "
    "OAT ONE ORE QUA RAT SEA SET SIT SON SUN TAN TEA TEN TIE TIN TOE VAN WAX YAK ZOO AERO CART DATE EARN "
    "IRON "
    "LION NOTE QUIZ RAIN SEAT STAR TONE TREE ATONE IRATE RATIO STARE TRAIN ORATES RETAIN SENIOR TISANE";

std::string Sorted(std::string text) {
    std::ranges::sort(text);
    return text;
}

}  // namespace

void StartSmallGame(const std::vector<std::string>& names, std::uint32_t seed) {
    std::vector<std::string> words;
    std::string text(kWords);
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(' ', at), text.size());
        words.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    std::ranges::sort(words);
    MakeStore(mainDict, 0);
    for (const std::string& word : words) AddWord(mainDict, word);
    game.numPlayers = static_cast<std::uint16_t>(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        game.players[i + 1].name = PlayerName(names[i]);
        PlayerKindFromName(static_cast<int>(i) + 1);
    }
    preferences.tellComputerToMove = true;
    SeedRandom(seed);
    BeginGame(false);
}

RandomGame::RandomGame(std::uint32_t seed) : random(seed) {
    static const std::vector<std::string> kNames{"Ada 9", "Bo", "Cy \"the\" 4",
                                                 "D\xE9sir\xE9"
                                                 "e 7"};
    preferences.timerEnabled = seed % 3 == 0;
    preferences.timeLimit = 2;
    StartSmallGame({kNames.begin(), kNames.begin() + Choose(1, 4)}, seed);
}

void RandomGame::Play(int steps) {
    for (; steps > 0 && !game.gameOver; --steps) {
        if (Choose(0, 9) > 0) {
            PlayTurn();
            continue;
        }
        for (int undone = Choose(1, 5); undone > 0; --undone) UndoMove();
        for (int redone = Choose(0, 4); redone > 0; --redone) RedoMove();
        // Undo forgets earlier passes, so the game does not go on behind one.
        while (game.history.movesCount > 0 && game.history.Last().letters == "{}") UndoMove();
    }
}

// The computer moves for everyone; now and then the player passes or exchanges as a person would.
void RandomGame::PlayTurn() {
    Player& player = game.Current();
    const int choice = Choose(0, 9);
    player.isComputer = choice > 1;
    int thrown = choice == 1 ? std::min<int>(Choose(1, 7), game.bag.tilesleft) : 0;
    for (LetterCode& code : player.rack.positions) {
        if (code == 0 || thrown == 0) continue;
        game.thrownBack.Append(std::exchange(code, '\0'));
        --thrown;
    }
    game.turnSeconds = Choose(0, 40);
    headless.answers = {true};
    FinishTurn();
    for (int p = 1; p <= game.numPlayers; ++p) PlayerKindFromName(p);
}

std::string GameText() {
    std::string text;
    ForEachSquare([&](BoardPosition at, const Square& square) {
        if (at.col == game.bounds.firstCol) text += '\n';
        text += kSquareKinds[square.kind].character;
        if (!square.IsEmpty()) text += square.letter;
        if (!square.IsEmpty() && square.letter == kBlank) text += square.blankLetter;
    });
    for (int p = 1; p <= game.numPlayers; ++p) {
        const Player& player = game.players[p];
        text += "\n" + std::string(player.name.View()) + (player.isComputer ? " computer " : " human ") +
                Sorted(std::string(player.rack.Codes().View()));
        for (int number : {player.score, player.timeUsed, player.turns + 0, player.rack.numtiles + 0,
                           player.lettersAdjustment, player.overtimePenalty, player.skill + 0}) {
            text += " " + std::to_string(number);
        }
    }
    const auto bagEnd = game.bag.tiles.begin() + game.bag.tilesleft;
    text += "\nbag " + Sorted({game.bag.tiles.begin(), bagEnd});
    return text + "\nplayer " + std::to_string(game.currentPlayer) + " move " +
           std::to_string(game.history.movesCount) + " passes " + std::to_string(game.passCount) +
           (game.gameOver ? " over" : "");
}

}  // namespace quillet
