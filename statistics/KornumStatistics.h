// Statistics of samples and frequency tables, and distribution functions. The module
// is split by topic; this header brings in every topic.
#pragma once

#include <kornum/BetaDistributions.h>
#include <kornum/Combinatorics.h>
#include <kornum/DiscreteDistributions.h>
#include <kornum/GammaDistributions.h>
#include <kornum/GroupedStatistics.h>
#include <kornum/NormalDistributions.h>
#include <kornum/SampleMoments.h>
#include <kornum/OrderStatistics.h>
#include <kornum/Regression.h>
