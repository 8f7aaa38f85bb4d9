// Checks the laws of every plan on random ones. The environment variables TARVELIN_SEED and
// TARVELIN_PLANS set the first seed and the number of plans.
#include <cstdlib>

#include "PlanGenerator.h"
#include "PlanLaws.h"
#include "TestSupport.h"

namespace tarvelin {
namespace {

unsigned FromEnvironment(const char* name, unsigned fallback) {
    const char* const text = std::getenv(name);
    return text == nullptr ? fallback : static_cast<unsigned>(std::strtoul(text, nullptr, 10));
}

TEST(PlanLaws, HoldForEveryPlan) {
    const unsigned first = FromEnvironment("TARVELIN_SEED", 2006);
    const unsigned plans = FromEnvironment("TARVELIN_PLANS", 150);
    for (unsigned seed = first; seed < first + plans; ++seed) {
        EXPECT_EQ(CheckLaws(PlanGenerator(seed).Next()), "") << "seed " << seed;
    }
}

}  // namespace
}  // namespace tarvelin
