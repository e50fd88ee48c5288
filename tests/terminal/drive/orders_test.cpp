#include "tests/terminal/drive/session_fixture.h"

namespace algo::terminal::drive {
namespace {

class Orders : public TSessionTest {};

TEST_F(Orders, HaveEveryFieldInAnswers) {
  Ask(R"({"do":"order","key":"K1"})");
  EXPECT_EQ(Ask(R"({"do":"orders"})")["orders"].dump(),
            R"([{"key":"K1","order_no":"K1","parent_no":"","account":"","symbol":"","exchange":"","side":0,)"
            R"("quantity":0,"filled":0,"committed":0,"price":0,"stop_price":0,"status":0,"type_flags":0,)"
            R"("auction_flags":0,"algo_flags":0,"flags":0,"algo_text":"","original":"","user":""}])");
}

TEST_F(Orders, TakeEveryField) {
  Ask(R"({"do":"order","key":"K1","order_no":"O","parent_no":"P","account":"A","symbol":"S","exchange":"E","side":1,)"
      R"("quantity":1000,"filled":10.5,"committed":1,"price":0.015,"stop_price":9,"status":-3,"type_flags":2048,)"
      R"("auction_flags":4096,"algo_flags":32768,"flags":4294967295,"algo_text":"T","original":"AlgoEntry","user":"U"})");
  EXPECT_EQ(
      Ask(R"({"do":"orders","key":"K1"})")["orders"].dump(),
      R"([{"key":"K1","order_no":"O","parent_no":"P","account":"A","symbol":"S","exchange":"E","side":1,)"
      R"("quantity":1000,"filled":10.5,"committed":1,"price":0.015,"stop_price":9,"status":-3,)"
      R"("type_flags":2048,"auction_flags":4096,"algo_flags":32768,"flags":4294967295,"algo_text":"T",)"
      R"("original":"AlgoEntry","user":"U"}])");
}

TEST_F(Orders, ChangeInTheFieldsThatAreNamed) {
  Play(R"({"do":"order","key":"K1","account":"A","quantity":5})"
       "\n"
       R"({"do":"order","key":"K2"})"
       "\n"
       R"({"do":"order","key":"K1","quantity":7})");
  const auto orders = Ask(R"({"do":"orders"})")["orders"];
  ASSERT_EQ(orders.size(), 2U);
  EXPECT_EQ(orders[0]["key"], "K1");
  EXPECT_EQ(orders[0]["account"], "A");
  EXPECT_EQ(orders[0]["quantity"], 7);
  EXPECT_EQ(orders[1]["key"], "K2");
}

TEST_F(Orders, AreAsTheyWereAfterARefusedCommand) {
  Ask(R"({"do":"order","key":"K1","account":"A"})");
  EXPECT_EQ(Refusal(R"({"do":"order","key":"K1","account":"B","quantity":"7"})"),
            "'quantity' must be a number");
  EXPECT_EQ(Refusal(R"({"do":"order","key":"K1","account":"B","flags":-1})"),
            "'flags' must be a number that fits 32 bits");
  EXPECT_EQ(Refusal(R"({"do":"order","key":"K2","side":0.5})"), "'side' must be a whole number");
  EXPECT_EQ(Refusal(R"({"do":"order","account":"B"})"), "'key' is missing");
  const auto orders = Ask(R"({"do":"orders"})")["orders"];
  ASSERT_EQ(orders.size(), 1U);
  EXPECT_EQ(orders[0]["account"], "A");
}

TEST_F(Orders, ThatAreNotThereAreNamed) {
  EXPECT_EQ(Refusal(R"({"do":"orders","key":"K9"})"), "there is no order 'K9'");
  EXPECT_EQ(Refusal(R"({"do":"post","channel":18011,"order":"K9","action":2})"), "there is no order 'K9'");
  EXPECT_EQ(Refusal(R"({"do":"post","channel":18011,"action":2})"), "'order' is missing");
  EXPECT_EQ(Refusal(R"({"do":"post","channel":18011,"order":null})"), "'action' is missing");
  EXPECT_EQ(Refusal(R"({"do":"post","channel":18012,"order":null,"action":2})"),
            "'channel' must be 18010, 18011 or 18016");
}

}  // namespace
}  // namespace algo::terminal::drive
