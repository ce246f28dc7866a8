#include "support/random_games.h"

#include <iterator>
#include <sstream>

#include "computer/opponents.h"
#include "game/bag.h"
#include "play/history.h"
#include "play/turns.h"

namespace quillet {
namespace {

constexpr auto kWords =
    "AA AE AI AT BE DO EH EL EN ER GO HI IN IT JO MA MU NO OE OX QI RE SH TO UN US ZA ACE AGE AIR ART AXE "
    "BAT "
    "CAT DEN EAR EEL EON FOX GNU INN KEY OAT RAT SEA CART LION QUIZ STARE RETAIN SENIOR";

std::string Sorted(std::string text) {
    std::ranges::sort(text);
    return text;
}

}  // namespace

RandomGame::RandomGame(std::uint32_t seed) : random(seed) {
    std::istringstream words(kWords);
    SetWords({std::istream_iterator<std::string>(words), {}});
    preferences.timerEnabled = seed % 3 == 0;
    preferences.timeLimit = 2;
    const Strings names{"Ada 9", "Bo", "Cy \"the\" 4", "Ren\xE9 7"};
    SeedRandom(seed);
    StartGame({names.begin(), names.begin() + Choose(1, 4)});
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
        if (code == 0 || thrown-- <= 0) continue;
        game.thrownBack.Append(std::exchange(code, '\0'));
    }
    game.turnSeconds = Choose(0, 40);
    headless.answers = {true};
    FinishTurn();
    for (int p = 1; p <= game.numPlayers; ++p) PlayerKindFromName(p);
}

std::string GameText() {
    std::ostringstream text;
    ForEachSquare([&](BoardPosition at, const Square& square) {
        text << (at.col == game.bounds.firstCol ? "\n" : " ") << kSquareKinds[square.kind].character;
        if (!square.IsEmpty()) text << square.letter << (square.letter == kBlank ? square.blankLetter : ' ');
    });
    for (int p = 1; p <= game.numPlayers; ++p) {
        const Player& player = game.players[p];
        text << '\n'
             << player.name.View() << (player.isComputer ? " computer " : " human ") << player.skill << ' '
             << Sorted(std::string(player.rack.Codes().View())) << ' ' << player.rack.numtiles << ' '
             << player.score << ' ' << player.timeUsed << ' ' << player.turns << ' '
             << player.lettersAdjustment << ' ' << player.overtimePenalty;
    }
    text << "\nbag " << Sorted({game.bag.tiles.begin(), game.bag.tiles.begin() + game.bag.tilesleft})
         << "\nplayer " << game.currentPlayer << " moves " << game.history.movesCount << " passes "
         << game.passCount << (game.gameOver ? " over" : "");
    return text.str();
}

}  // namespace quillet
