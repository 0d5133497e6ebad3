// Statistics of samples and frequency tables, and distribution functions. The module
// is split by topic; this header brings in every topic.
#pragma once

#include <kornum/BetaDistribution.h>
#include <kornum/ChiSquareDistribution.h>
#include <kornum/Combinatorics.h>
#include <kornum/DensityTables.h>
#include <kornum/DiscreteDistributions.h>
#include <kornum/ExponentialDistribution.h>
#include <kornum/FDistribution.h>
#include <kornum/GroupedStatistics.h>
#include <kornum/NormalDistributions.h>
#include <kornum/OrderStatistics.h>
#include <kornum/Regression.h>
#include <kornum/SampleMoments.h>
#include <kornum/StudentTDistribution.h>
