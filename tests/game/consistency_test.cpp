#include "game/consistency.h"

#include "support/world.h"

namespace quillet {
namespace {

using Consistency = World;

TEST_F(Consistency, EachKindOfDamageIsFound) {
    StartGame({"Ada", "Bo"});
    GiveRack(1, "CATDOGE");
    PutTiles(8, 8, "CA");
    game.players[1].rack.positions[3] = 0;
    game.thrownBack = "T";
    GiveScore(2, 12);
    ExpectConsistent();
    const std::pair<void (*)(), const char*> cases[] = {
        {[] { game.board[8][8].letter = 'Z'; }, "tiles of code C"},
        {[] { --game.bag.tilesleft; }, "tiles of code"},
        {[] { game.thrownBack.Clear(); }, "tiles of code T"},
        {[] { game.players[2].rack.numtiles = 6; }, "rack of player 2 counts 6 tiles and has 7"},
        {[] { game.currentPlayer = 2; }, "rack of player 1 counts 7 tiles and has 4"},
        {[] { game.players[2].score = 13; }, "score of player 2 is 13, the moves make 12"},
        {[] { game.gameOver = true, game.players[1].overtimePenalty = 5; }, "score of player 1"},
    };
    const GameState sound = game;
    for (const auto& [damage, found] : cases) {
        game = sound;
        damage();
        EXPECT_THAT(FindInconsistency(game).value_or("nothing"), HasSubstr(found));
    }
}

}  // namespace
}  // namespace quillet
