// The State Plane systems of 1983 that have a number of their own beside the catalogue's: zones in feet, and zones on
// the later realizations of the datum, where their parameters are those of the plain zone. Numbers are those of the
// EPSG registry; printed by tests/data/geotiff/make_tables.py.
#pragma once

#include <array>
#include <cstdint>

namespace ZrProj::GeoTIFF {

struct StatePlaneRow {
    std::uint16_t code;       // of the projected system
    std::uint16_t posc1983;   // the POSC number of the catalogue for the same zone of 1983 in metres
    std::uint16_t unit;       // the code of the unit of length
    std::uint16_t geographic; // the code of the geographic system
};

// clang-format off
inline constexpr auto statePlaneTable = std::to_array<StatePlaneRow>({
    StatePlaneRow{2222, 26948, 9002, 4269}, // NAD83 / Arizona East (ft)
    StatePlaneRow{2223, 26949, 9002, 4269}, // NAD83 / Arizona Central (ft)
    StatePlaneRow{2224, 26950, 9002, 4269}, // NAD83 / Arizona West (ft)
    StatePlaneRow{2225, 26941, 9003, 4269}, // NAD83 / California zone 1 (ftUS)
    StatePlaneRow{2226, 26942, 9003, 4269}, // NAD83 / California zone 2 (ftUS)
    StatePlaneRow{2227, 26943, 9003, 4269}, // NAD83 / California zone 3 (ftUS)
    StatePlaneRow{2228, 26944, 9003, 4269}, // NAD83 / California zone 4 (ftUS)
    StatePlaneRow{2229, 26945, 9003, 4269}, // NAD83 / California zone 5 (ftUS)
    StatePlaneRow{2230, 26946, 9003, 4269}, // NAD83 / California zone 6 (ftUS)
    StatePlaneRow{2231, 26953, 9003, 4269}, // NAD83 / Colorado North (ftUS)
    StatePlaneRow{2232, 26954, 9003, 4269}, // NAD83 / Colorado Central (ftUS)
    StatePlaneRow{2233, 26955, 9003, 4269}, // NAD83 / Colorado South (ftUS)
    StatePlaneRow{2234, 26956, 9003, 4269}, // NAD83 / Connecticut (ftUS)
    StatePlaneRow{2235, 26957, 9003, 4269}, // NAD83 / Delaware (ftUS)
    StatePlaneRow{2236, 26958, 9003, 4269}, // NAD83 / Florida East (ftUS)
    StatePlaneRow{2237, 26959, 9003, 4269}, // NAD83 / Florida West (ftUS)
    StatePlaneRow{2238, 26960, 9003, 4269}, // NAD83 / Florida North (ftUS)
    StatePlaneRow{2239, 26966, 9003, 4269}, // NAD83 / Georgia East (ftUS)
    StatePlaneRow{2240, 26967, 9003, 4269}, // NAD83 / Georgia West (ftUS)
    StatePlaneRow{2241, 26968, 9003, 4269}, // NAD83 / Idaho East (ftUS)
    StatePlaneRow{2242, 26969, 9003, 4269}, // NAD83 / Idaho Central (ftUS)
    StatePlaneRow{2243, 26970, 9003, 4269}, // NAD83 / Idaho West (ftUS)
    StatePlaneRow{2247, 26980, 9003, 4269}, // NAD83 / Kentucky South (ftUS)
    StatePlaneRow{2248, 26985, 9003, 4269}, // NAD83 / Maryland (ftUS)
    StatePlaneRow{2249, 26986, 9003, 4269}, // NAD83 / Massachusetts Mainland (ftUS)
    StatePlaneRow{2250, 26987, 9003, 4269}, // NAD83 / Massachusetts Island (ftUS)
    StatePlaneRow{2251, 26988, 9002, 4269}, // NAD83 / Michigan North (ft)
    StatePlaneRow{2252, 26989, 9002, 4269}, // NAD83 / Michigan Central (ft)
    StatePlaneRow{2253, 26990, 9002, 4269}, // NAD83 / Michigan South (ft)
    StatePlaneRow{2254, 26994, 9003, 4269}, // NAD83 / Mississippi East (ftUS)
    StatePlaneRow{2255, 26995, 9003, 4269}, // NAD83 / Mississippi West (ftUS)
    StatePlaneRow{2256, 32100, 9002, 4269}, // NAD83 / Montana (ft)
    StatePlaneRow{2257, 32112, 9003, 4269}, // NAD83 / New Mexico East (ftUS)
    StatePlaneRow{2258, 32113, 9003, 4269}, // NAD83 / New Mexico Central (ftUS)
    StatePlaneRow{2259, 32114, 9003, 4269}, // NAD83 / New Mexico West (ftUS)
    StatePlaneRow{2260, 32115, 9003, 4269}, // NAD83 / New York East (ftUS)
    StatePlaneRow{2261, 32116, 9003, 4269}, // NAD83 / New York Central (ftUS)
    StatePlaneRow{2262, 32117, 9003, 4269}, // NAD83 / New York West (ftUS)
    StatePlaneRow{2263, 32118, 9003, 4269}, // NAD83 / New York Long Island (ftUS)
    StatePlaneRow{2265, 32120, 9002, 4269}, // NAD83 / North Dakota North (ft)
    StatePlaneRow{2266, 32121, 9002, 4269}, // NAD83 / North Dakota South (ft)
    StatePlaneRow{2267, 32124, 9003, 4269}, // NAD83 / Oklahoma North (ftUS)
    StatePlaneRow{2268, 32125, 9003, 4269}, // NAD83 / Oklahoma South (ftUS)
    StatePlaneRow{2269, 32126, 9002, 4269}, // NAD83 / Oregon North (ft)
    StatePlaneRow{2270, 32127, 9002, 4269}, // NAD83 / Oregon South (ft)
    StatePlaneRow{2271, 32128, 9003, 4269}, // NAD83 / Pennsylvania North (ftUS)
    StatePlaneRow{2272, 32129, 9003, 4269}, // NAD83 / Pennsylvania South (ftUS)
    StatePlaneRow{2273, 32133, 9002, 4269}, // NAD83 / South Carolina (ft)
    StatePlaneRow{2274, 32136, 9003, 4269}, // NAD83 / Tennessee (ftUS)
    StatePlaneRow{2275, 32137, 9003, 4269}, // NAD83 / Texas North (ftUS)
    StatePlaneRow{2276, 32138, 9003, 4269}, // NAD83 / Texas North Central (ftUS)
    StatePlaneRow{2277, 32139, 9003, 4269}, // NAD83 / Texas Central (ftUS)
    StatePlaneRow{2278, 32140, 9003, 4269}, // NAD83 / Texas South Central (ftUS)
    StatePlaneRow{2279, 32141, 9003, 4269}, // NAD83 / Texas South (ftUS)
    StatePlaneRow{2280, 32142, 9002, 4269}, // NAD83 / Utah North (ft)
    StatePlaneRow{2281, 32143, 9002, 4269}, // NAD83 / Utah Central (ft)
    StatePlaneRow{2282, 32144, 9002, 4269}, // NAD83 / Utah South (ft)
    StatePlaneRow{2283, 32146, 9003, 4269}, // NAD83 / Virginia North (ftUS)
    StatePlaneRow{2284, 32147, 9003, 4269}, // NAD83 / Virginia South (ftUS)
    StatePlaneRow{2285, 32148, 9003, 4269}, // NAD83 / Washington North (ftUS)
    StatePlaneRow{2286, 32149, 9003, 4269}, // NAD83 / Washington South (ftUS)
    StatePlaneRow{2287, 32152, 9003, 4269}, // NAD83 / Wisconsin North (ftUS)
    StatePlaneRow{2288, 32153, 9003, 4269}, // NAD83 / Wisconsin Central (ftUS)
    StatePlaneRow{2289, 32154, 9003, 4269}, // NAD83 / Wisconsin South (ftUS)
    StatePlaneRow{2759, 26929, 9001, 4152}, // NAD83(HARN) / Alabama East
    StatePlaneRow{2760, 26930, 9001, 4152}, // NAD83(HARN) / Alabama West
    StatePlaneRow{2761, 26948, 9001, 4152}, // NAD83(HARN) / Arizona East
    StatePlaneRow{2762, 26949, 9001, 4152}, // NAD83(HARN) / Arizona Central
    StatePlaneRow{2763, 26950, 9001, 4152}, // NAD83(HARN) / Arizona West
    StatePlaneRow{2764, 26951, 9001, 4152}, // NAD83(HARN) / Arkansas North
    StatePlaneRow{2765, 26952, 9001, 4152}, // NAD83(HARN) / Arkansas South
    StatePlaneRow{2766, 26941, 9001, 4152}, // NAD83(HARN) / California zone 1
    StatePlaneRow{2767, 26942, 9001, 4152}, // NAD83(HARN) / California zone 2
    StatePlaneRow{2768, 26943, 9001, 4152}, // NAD83(HARN) / California zone 3
    StatePlaneRow{2769, 26944, 9001, 4152}, // NAD83(HARN) / California zone 4
    StatePlaneRow{2770, 26945, 9001, 4152}, // NAD83(HARN) / California zone 5
    StatePlaneRow{2771, 26946, 9001, 4152}, // NAD83(HARN) / California zone 6
    StatePlaneRow{2772, 26953, 9001, 4152}, // NAD83(HARN) / Colorado North
    StatePlaneRow{2773, 26954, 9001, 4152}, // NAD83(HARN) / Colorado Central
    StatePlaneRow{2774, 26955, 9001, 4152}, // NAD83(HARN) / Colorado South
    StatePlaneRow{2775, 26956, 9001, 4152}, // NAD83(HARN) / Connecticut
    StatePlaneRow{2776, 26957, 9001, 4152}, // NAD83(HARN) / Delaware
    StatePlaneRow{2777, 26958, 9001, 4152}, // NAD83(HARN) / Florida East
    StatePlaneRow{2778, 26959, 9001, 4152}, // NAD83(HARN) / Florida West
    StatePlaneRow{2779, 26960, 9001, 4152}, // NAD83(HARN) / Florida North
    StatePlaneRow{2780, 26966, 9001, 4152}, // NAD83(HARN) / Georgia East
    StatePlaneRow{2781, 26967, 9001, 4152}, // NAD83(HARN) / Georgia West
    StatePlaneRow{2782, 26961, 9001, 4152}, // NAD83(HARN) / Hawaii zone 1
    StatePlaneRow{2783, 26962, 9001, 4152}, // NAD83(HARN) / Hawaii zone 2
    StatePlaneRow{2784, 26963, 9001, 4152}, // NAD83(HARN) / Hawaii zone 3
    StatePlaneRow{2785, 26964, 9001, 4152}, // NAD83(HARN) / Hawaii zone 4
    StatePlaneRow{2786, 26965, 9001, 4152}, // NAD83(HARN) / Hawaii zone 5
    StatePlaneRow{2787, 26968, 9001, 4152}, // NAD83(HARN) / Idaho East
    StatePlaneRow{2788, 26969, 9001, 4152}, // NAD83(HARN) / Idaho Central
    StatePlaneRow{2789, 26970, 9001, 4152}, // NAD83(HARN) / Idaho West
    StatePlaneRow{2790, 26971, 9001, 4152}, // NAD83(HARN) / Illinois East
    StatePlaneRow{2791, 26972, 9001, 4152}, // NAD83(HARN) / Illinois West
    StatePlaneRow{2792, 26973, 9001, 4152}, // NAD83(HARN) / Indiana East
    StatePlaneRow{2793, 26974, 9001, 4152}, // NAD83(HARN) / Indiana West
    StatePlaneRow{2794, 26975, 9001, 4152}, // NAD83(HARN) / Iowa North
    StatePlaneRow{2795, 26976, 9001, 4152}, // NAD83(HARN) / Iowa South
    StatePlaneRow{2796, 26977, 9001, 4152}, // NAD83(HARN) / Kansas North
    StatePlaneRow{2797, 26978, 9001, 4152}, // NAD83(HARN) / Kansas South
    StatePlaneRow{2799, 26980, 9001, 4152}, // NAD83(HARN) / Kentucky South
    StatePlaneRow{2800, 26981, 9001, 4152}, // NAD83(HARN) / Louisiana North
    StatePlaneRow{2801, 26982, 9001, 4152}, // NAD83(HARN) / Louisiana South
    StatePlaneRow{2802, 26983, 9001, 4152}, // NAD83(HARN) / Maine East
    StatePlaneRow{2803, 26984, 9001, 4152}, // NAD83(HARN) / Maine West
    StatePlaneRow{2804, 26985, 9001, 4152}, // NAD83(HARN) / Maryland
    StatePlaneRow{2805, 26986, 9001, 4152}, // NAD83(HARN) / Massachusetts Mainland
    StatePlaneRow{2806, 26987, 9001, 4152}, // NAD83(HARN) / Massachusetts Island
    StatePlaneRow{2807, 26988, 9001, 4152}, // NAD83(HARN) / Michigan North
    StatePlaneRow{2808, 26989, 9001, 4152}, // NAD83(HARN) / Michigan Central
    StatePlaneRow{2809, 26990, 9001, 4152}, // NAD83(HARN) / Michigan South
    StatePlaneRow{2810, 26991, 9001, 4152}, // NAD83(HARN) / Minnesota North
    StatePlaneRow{2811, 26992, 9001, 4152}, // NAD83(HARN) / Minnesota Central
    StatePlaneRow{2812, 26993, 9001, 4152}, // NAD83(HARN) / Minnesota South
    StatePlaneRow{2813, 26994, 9001, 4152}, // NAD83(HARN) / Mississippi East
    StatePlaneRow{2814, 26995, 9001, 4152}, // NAD83(HARN) / Mississippi West
    StatePlaneRow{2815, 26996, 9001, 4152}, // NAD83(HARN) / Missouri East
    StatePlaneRow{2816, 26997, 9001, 4152}, // NAD83(HARN) / Missouri Central
    StatePlaneRow{2817, 26998, 9001, 4152}, // NAD83(HARN) / Missouri West
    StatePlaneRow{2818, 32100, 9001, 4152}, // NAD83(HARN) / Montana
    StatePlaneRow{2819, 32104, 9001, 4152}, // NAD83(HARN) / Nebraska
    StatePlaneRow{2820, 32107, 9001, 4152}, // NAD83(HARN) / Nevada East
    StatePlaneRow{2821, 32108, 9001, 4152}, // NAD83(HARN) / Nevada Central
    StatePlaneRow{2822, 32109, 9001, 4152}, // NAD83(HARN) / Nevada West
    StatePlaneRow{2823, 32110, 9001, 4152}, // NAD83(HARN) / New Hampshire
    StatePlaneRow{2824, 32111, 9001, 4152}, // NAD83(HARN) / New Jersey
    StatePlaneRow{2825, 32112, 9001, 4152}, // NAD83(HARN) / New Mexico East
    StatePlaneRow{2826, 32113, 9001, 4152}, // NAD83(HARN) / New Mexico Central
    StatePlaneRow{2827, 32114, 9001, 4152}, // NAD83(HARN) / New Mexico West
    StatePlaneRow{2828, 32115, 9001, 4152}, // NAD83(HARN) / New York East
    StatePlaneRow{2829, 32116, 9001, 4152}, // NAD83(HARN) / New York Central
    StatePlaneRow{2830, 32117, 9001, 4152}, // NAD83(HARN) / New York West
    StatePlaneRow{2831, 32118, 9001, 4152}, // NAD83(HARN) / New York Long Island
    StatePlaneRow{2832, 32120, 9001, 4152}, // NAD83(HARN) / North Dakota North
    StatePlaneRow{2833, 32121, 9001, 4152}, // NAD83(HARN) / North Dakota South
    StatePlaneRow{2834, 32122, 9001, 4152}, // NAD83(HARN) / Ohio North
    StatePlaneRow{2835, 32123, 9001, 4152}, // NAD83(HARN) / Ohio South
    StatePlaneRow{2836, 32124, 9001, 4152}, // NAD83(HARN) / Oklahoma North
    StatePlaneRow{2837, 32125, 9001, 4152}, // NAD83(HARN) / Oklahoma South
    StatePlaneRow{2838, 32126, 9001, 4152}, // NAD83(HARN) / Oregon North
    StatePlaneRow{2839, 32127, 9001, 4152}, // NAD83(HARN) / Oregon South
    StatePlaneRow{2840, 32130, 9001, 4152}, // NAD83(HARN) / Rhode Island
    StatePlaneRow{2841, 32134, 9001, 4152}, // NAD83(HARN) / South Dakota North
    StatePlaneRow{2842, 32135, 9001, 4152}, // NAD83(HARN) / South Dakota South
    StatePlaneRow{2843, 32136, 9001, 4152}, // NAD83(HARN) / Tennessee
    StatePlaneRow{2844, 32137, 9001, 4152}, // NAD83(HARN) / Texas North
    StatePlaneRow{2845, 32138, 9001, 4152}, // NAD83(HARN) / Texas North Central
    StatePlaneRow{2846, 32139, 9001, 4152}, // NAD83(HARN) / Texas Central
    StatePlaneRow{2847, 32140, 9001, 4152}, // NAD83(HARN) / Texas South Central
    StatePlaneRow{2848, 32141, 9001, 4152}, // NAD83(HARN) / Texas South
    StatePlaneRow{2849, 32142, 9001, 4152}, // NAD83(HARN) / Utah North
    StatePlaneRow{2850, 32143, 9001, 4152}, // NAD83(HARN) / Utah Central
    StatePlaneRow{2851, 32144, 9001, 4152}, // NAD83(HARN) / Utah South
    StatePlaneRow{2852, 32145, 9001, 4152}, // NAD83(HARN) / Vermont
    StatePlaneRow{2853, 32146, 9001, 4152}, // NAD83(HARN) / Virginia North
    StatePlaneRow{2854, 32147, 9001, 4152}, // NAD83(HARN) / Virginia South
    StatePlaneRow{2855, 32148, 9001, 4152}, // NAD83(HARN) / Washington North
    StatePlaneRow{2856, 32149, 9001, 4152}, // NAD83(HARN) / Washington South
    StatePlaneRow{2857, 32150, 9001, 4152}, // NAD83(HARN) / West Virginia North
    StatePlaneRow{2858, 32151, 9001, 4152}, // NAD83(HARN) / West Virginia South
    StatePlaneRow{2859, 32152, 9001, 4152}, // NAD83(HARN) / Wisconsin North
    StatePlaneRow{2860, 32153, 9001, 4152}, // NAD83(HARN) / Wisconsin Central
    StatePlaneRow{2861, 32154, 9001, 4152}, // NAD83(HARN) / Wisconsin South
    StatePlaneRow{2862, 32155, 9001, 4152}, // NAD83(HARN) / Wyoming East
    StatePlaneRow{2863, 32156, 9001, 4152}, // NAD83(HARN) / Wyoming East Central
    StatePlaneRow{2864, 32157, 9001, 4152}, // NAD83(HARN) / Wyoming West Central
    StatePlaneRow{2865, 32158, 9001, 4152}, // NAD83(HARN) / Wyoming West
    StatePlaneRow{2867, 26948, 9002, 4152}, // NAD83(HARN) / Arizona East (ft)
    StatePlaneRow{2868, 26949, 9002, 4152}, // NAD83(HARN) / Arizona Central (ft)
    StatePlaneRow{2869, 26950, 9002, 4152}, // NAD83(HARN) / Arizona West (ft)
    StatePlaneRow{2870, 26941, 9003, 4152}, // NAD83(HARN) / California zone 1 (ftUS)
    StatePlaneRow{2871, 26942, 9003, 4152}, // NAD83(HARN) / California zone 2 (ftUS)
    StatePlaneRow{2872, 26943, 9003, 4152}, // NAD83(HARN) / California zone 3 (ftUS)
    StatePlaneRow{2873, 26944, 9003, 4152}, // NAD83(HARN) / California zone 4 (ftUS)
    StatePlaneRow{2874, 26945, 9003, 4152}, // NAD83(HARN) / California zone 5 (ftUS)
    StatePlaneRow{2875, 26946, 9003, 4152}, // NAD83(HARN) / California zone 6 (ftUS)
    StatePlaneRow{2876, 26953, 9003, 4152}, // NAD83(HARN) / Colorado North (ftUS)
    StatePlaneRow{2877, 26954, 9003, 4152}, // NAD83(HARN) / Colorado Central (ftUS)
    StatePlaneRow{2878, 26955, 9003, 4152}, // NAD83(HARN) / Colorado South (ftUS)
    StatePlaneRow{2879, 26956, 9003, 4152}, // NAD83(HARN) / Connecticut (ftUS)
    StatePlaneRow{2880, 26957, 9003, 4152}, // NAD83(HARN) / Delaware (ftUS)
    StatePlaneRow{2881, 26958, 9003, 4152}, // NAD83(HARN) / Florida East (ftUS)
    StatePlaneRow{2882, 26959, 9003, 4152}, // NAD83(HARN) / Florida West (ftUS)
    StatePlaneRow{2883, 26960, 9003, 4152}, // NAD83(HARN) / Florida North (ftUS)
    StatePlaneRow{2884, 26966, 9003, 4152}, // NAD83(HARN) / Georgia East (ftUS)
    StatePlaneRow{2885, 26967, 9003, 4152}, // NAD83(HARN) / Georgia West (ftUS)
    StatePlaneRow{2886, 26968, 9003, 4152}, // NAD83(HARN) / Idaho East (ftUS)
    StatePlaneRow{2887, 26969, 9003, 4152}, // NAD83(HARN) / Idaho Central (ftUS)
    StatePlaneRow{2888, 26970, 9003, 4152}, // NAD83(HARN) / Idaho West (ftUS)
    StatePlaneRow{2892, 26980, 9003, 4152}, // NAD83(HARN) / Kentucky South (ftUS)
    StatePlaneRow{2893, 26985, 9003, 4152}, // NAD83(HARN) / Maryland (ftUS)
    StatePlaneRow{2894, 26986, 9003, 4152}, // NAD83(HARN) / Massachusetts Mainland (ftUS)
    StatePlaneRow{2895, 26987, 9003, 4152}, // NAD83(HARN) / Massachusetts Island (ftUS)
    StatePlaneRow{2896, 26988, 9002, 4152}, // NAD83(HARN) / Michigan North (ft)
    StatePlaneRow{2897, 26989, 9002, 4152}, // NAD83(HARN) / Michigan Central (ft)
    StatePlaneRow{2898, 26990, 9002, 4152}, // NAD83(HARN) / Michigan South (ft)
    StatePlaneRow{2899, 26994, 9003, 4152}, // NAD83(HARN) / Mississippi East (ftUS)
    StatePlaneRow{2900, 26995, 9003, 4152}, // NAD83(HARN) / Mississippi West (ftUS)
    StatePlaneRow{2901, 32100, 9002, 4152}, // NAD83(HARN) / Montana (ft)
    StatePlaneRow{2902, 32112, 9003, 4152}, // NAD83(HARN) / New Mexico East (ftUS)
    StatePlaneRow{2903, 32113, 9003, 4152}, // NAD83(HARN) / New Mexico Central (ftUS)
    StatePlaneRow{2904, 32114, 9003, 4152}, // NAD83(HARN) / New Mexico West (ftUS)
    StatePlaneRow{2905, 32115, 9003, 4152}, // NAD83(HARN) / New York East (ftUS)
    StatePlaneRow{2906, 32116, 9003, 4152}, // NAD83(HARN) / New York Central (ftUS)
    StatePlaneRow{2907, 32117, 9003, 4152}, // NAD83(HARN) / New York West (ftUS)
    StatePlaneRow{2908, 32118, 9003, 4152}, // NAD83(HARN) / New York Long Island (ftUS)
    StatePlaneRow{2909, 32120, 9002, 4152}, // NAD83(HARN) / North Dakota North (ft)
    StatePlaneRow{2910, 32121, 9002, 4152}, // NAD83(HARN) / North Dakota South (ft)
    StatePlaneRow{2911, 32124, 9003, 4152}, // NAD83(HARN) / Oklahoma North (ftUS)
    StatePlaneRow{2912, 32125, 9003, 4152}, // NAD83(HARN) / Oklahoma South (ftUS)
    StatePlaneRow{2913, 32126, 9002, 4152}, // NAD83(HARN) / Oregon North (ft)
    StatePlaneRow{2914, 32127, 9002, 4152}, // NAD83(HARN) / Oregon South (ft)
    StatePlaneRow{2915, 32136, 9003, 4152}, // NAD83(HARN) / Tennessee (ftUS)
    StatePlaneRow{2916, 32137, 9003, 4152}, // NAD83(HARN) / Texas North (ftUS)
    StatePlaneRow{2917, 32138, 9003, 4152}, // NAD83(HARN) / Texas North Central (ftUS)
    StatePlaneRow{2918, 32139, 9003, 4152}, // NAD83(HARN) / Texas Central (ftUS)
    StatePlaneRow{2919, 32140, 9003, 4152}, // NAD83(HARN) / Texas South Central (ftUS)
    StatePlaneRow{2920, 32141, 9003, 4152}, // NAD83(HARN) / Texas South (ftUS)
    StatePlaneRow{2921, 32142, 9002, 4152}, // NAD83(HARN) / Utah North (ft)
    StatePlaneRow{2922, 32143, 9002, 4152}, // NAD83(HARN) / Utah Central (ft)
    StatePlaneRow{2923, 32144, 9002, 4152}, // NAD83(HARN) / Utah South (ft)
    StatePlaneRow{2924, 32146, 9003, 4152}, // NAD83(HARN) / Virginia North (ftUS)
    StatePlaneRow{2925, 32147, 9003, 4152}, // NAD83(HARN) / Virginia South (ftUS)
    StatePlaneRow{2926, 32148, 9003, 4152}, // NAD83(HARN) / Washington North (ftUS)
    StatePlaneRow{2927, 32149, 9003, 4152}, // NAD83(HARN) / Washington South (ftUS)
    StatePlaneRow{2928, 32152, 9003, 4152}, // NAD83(HARN) / Wisconsin North (ftUS)
    StatePlaneRow{2929, 32153, 9003, 4152}, // NAD83(HARN) / Wisconsin Central (ftUS)
    StatePlaneRow{2930, 32154, 9003, 4152}, // NAD83(HARN) / Wisconsin South (ftUS)
    StatePlaneRow{2965, 26973, 9003, 4269}, // NAD83 / Indiana East (ftUS)
    StatePlaneRow{2966, 26974, 9003, 4269}, // NAD83 / Indiana West (ftUS)
    StatePlaneRow{2967, 26973, 9003, 4152}, // NAD83(HARN) / Indiana East (ftUS)
    StatePlaneRow{2968, 26974, 9003, 4152}, // NAD83(HARN) / Indiana West (ftUS)
    StatePlaneRow{3358, 32119, 9001, 4152}, // NAD83(HARN) / North Carolina
    StatePlaneRow{3360, 32133, 9001, 4152}, // NAD83(HARN) / South Carolina
    StatePlaneRow{3361, 32133, 9002, 4152}, // NAD83(HARN) / South Carolina (ft)
    StatePlaneRow{3362, 32128, 9001, 4152}, // NAD83(HARN) / Pennsylvania North
    StatePlaneRow{3363, 32128, 9003, 4152}, // NAD83(HARN) / Pennsylvania North (ftUS)
    StatePlaneRow{3364, 32129, 9001, 4152}, // NAD83(HARN) / Pennsylvania South
    StatePlaneRow{3365, 32129, 9003, 4152}, // NAD83(HARN) / Pennsylvania South (ftUS)
    StatePlaneRow{3417, 26975, 9003, 4269}, // NAD83 / Iowa North (ftUS)
    StatePlaneRow{3418, 26976, 9003, 4269}, // NAD83 / Iowa South (ftUS)
    StatePlaneRow{3419, 26977, 9003, 4269}, // NAD83 / Kansas North (ftUS)
    StatePlaneRow{3420, 26978, 9003, 4269}, // NAD83 / Kansas South (ftUS)
    StatePlaneRow{3421, 32107, 9003, 4269}, // NAD83 / Nevada East (ftUS)
    StatePlaneRow{3422, 32108, 9003, 4269}, // NAD83 / Nevada Central (ftUS)
    StatePlaneRow{3423, 32109, 9003, 4269}, // NAD83 / Nevada West (ftUS)
    StatePlaneRow{3424, 32111, 9003, 4269}, // NAD83 / New Jersey (ftUS)
    StatePlaneRow{3425, 26975, 9003, 4152}, // NAD83(HARN) / Iowa North (ftUS)
    StatePlaneRow{3426, 26976, 9003, 4152}, // NAD83(HARN) / Iowa South (ftUS)
    StatePlaneRow{3427, 26977, 9003, 4152}, // NAD83(HARN) / Kansas North (ftUS)
    StatePlaneRow{3428, 26978, 9003, 4152}, // NAD83(HARN) / Kansas South (ftUS)
    StatePlaneRow{3429, 32107, 9003, 4152}, // NAD83(HARN) / Nevada East (ftUS)
    StatePlaneRow{3430, 32108, 9003, 4152}, // NAD83(HARN) / Nevada Central (ftUS)
    StatePlaneRow{3431, 32109, 9003, 4152}, // NAD83(HARN) / Nevada West (ftUS)
    StatePlaneRow{3432, 32111, 9003, 4152}, // NAD83(HARN) / New Jersey (ftUS)
    StatePlaneRow{3433, 26951, 9003, 4269}, // NAD83 / Arkansas North (ftUS)
    StatePlaneRow{3434, 26952, 9003, 4269}, // NAD83 / Arkansas South (ftUS)
    StatePlaneRow{3435, 26971, 9003, 4269}, // NAD83 / Illinois East (ftUS)
    StatePlaneRow{3436, 26972, 9003, 4269}, // NAD83 / Illinois West (ftUS)
    StatePlaneRow{3437, 32110, 9003, 4269}, // NAD83 / New Hampshire (ftUS)
    StatePlaneRow{3438, 32130, 9003, 4269}, // NAD83 / Rhode Island (ftUS)
    StatePlaneRow{3441, 26951, 9003, 4152}, // NAD83(HARN) / Arkansas North (ftUS)
    StatePlaneRow{3442, 26952, 9003, 4152}, // NAD83(HARN) / Arkansas South (ftUS)
    StatePlaneRow{3443, 26971, 9003, 4152}, // NAD83(HARN) / Illinois East (ftUS)
    StatePlaneRow{3444, 26972, 9003, 4152}, // NAD83(HARN) / Illinois West (ftUS)
    StatePlaneRow{3445, 32110, 9003, 4152}, // NAD83(HARN) / New Hampshire (ftUS)
    StatePlaneRow{3446, 32130, 9003, 4152}, // NAD83(HARN) / Rhode Island (ftUS)
    StatePlaneRow{3451, 26981, 9003, 4269}, // NAD83 / Louisiana North (ftUS)
    StatePlaneRow{3452, 26982, 9003, 4269}, // NAD83 / Louisiana South (ftUS)
    StatePlaneRow{3455, 32135, 9003, 4269}, // NAD83 / South Dakota South (ftUS)
    StatePlaneRow{3456, 26981, 9003, 4152}, // NAD83(HARN) / Louisiana North (ftUS)
    StatePlaneRow{3457, 26982, 9003, 4152}, // NAD83(HARN) / Louisiana South (ftUS)
    StatePlaneRow{3458, 32134, 9003, 4152}, // NAD83(HARN) / South Dakota North (ftUS)
    StatePlaneRow{3459, 32135, 9003, 4152}, // NAD83(HARN) / South Dakota South (ftUS)
    StatePlaneRow{3465, 26929, 9001, 4759}, // NAD83(NSRS2007) / Alabama East
    StatePlaneRow{3466, 26930, 9001, 4759}, // NAD83(NSRS2007) / Alabama West
    StatePlaneRow{3468, 26931, 9001, 4759}, // NAD83(NSRS2007) / Alaska zone 1
    StatePlaneRow{3469, 26932, 9001, 4759}, // NAD83(NSRS2007) / Alaska zone 2
    StatePlaneRow{3470, 26933, 9001, 4759}, // NAD83(NSRS2007) / Alaska zone 3
    StatePlaneRow{3471, 26934, 9001, 4759}, // NAD83(NSRS2007) / Alaska zone 4
    StatePlaneRow{3472, 26935, 9001, 4759}, // NAD83(NSRS2007) / Alaska zone 5
    StatePlaneRow{3473, 26936, 9001, 4759}, // NAD83(NSRS2007) / Alaska zone 6
    StatePlaneRow{3474, 26937, 9001, 4759}, // NAD83(NSRS2007) / Alaska zone 7
    StatePlaneRow{3475, 26938, 9001, 4759}, // NAD83(NSRS2007) / Alaska zone 8
    StatePlaneRow{3476, 26939, 9001, 4759}, // NAD83(NSRS2007) / Alaska zone 9
    StatePlaneRow{3477, 26940, 9001, 4759}, // NAD83(NSRS2007) / Alaska zone 10
    StatePlaneRow{3478, 26949, 9001, 4759}, // NAD83(NSRS2007) / Arizona Central
    StatePlaneRow{3479, 26949, 9002, 4759}, // NAD83(NSRS2007) / Arizona Central (ft)
    StatePlaneRow{3480, 26948, 9001, 4759}, // NAD83(NSRS2007) / Arizona East
    StatePlaneRow{3481, 26948, 9002, 4759}, // NAD83(NSRS2007) / Arizona East (ft)
    StatePlaneRow{3482, 26950, 9001, 4759}, // NAD83(NSRS2007) / Arizona West
    StatePlaneRow{3483, 26950, 9002, 4759}, // NAD83(NSRS2007) / Arizona West (ft)
    StatePlaneRow{3484, 26951, 9001, 4759}, // NAD83(NSRS2007) / Arkansas North
    StatePlaneRow{3485, 26951, 9003, 4759}, // NAD83(NSRS2007) / Arkansas North (ftUS)
    StatePlaneRow{3486, 26952, 9001, 4759}, // NAD83(NSRS2007) / Arkansas South
    StatePlaneRow{3487, 26952, 9003, 4759}, // NAD83(NSRS2007) / Arkansas South (ftUS)
    StatePlaneRow{3489, 26941, 9001, 4759}, // NAD83(NSRS2007) / California zone 1
    StatePlaneRow{3490, 26941, 9003, 4759}, // NAD83(NSRS2007) / California zone 1 (ftUS)
    StatePlaneRow{3491, 26942, 9001, 4759}, // NAD83(NSRS2007) / California zone 2
    StatePlaneRow{3492, 26942, 9003, 4759}, // NAD83(NSRS2007) / California zone 2 (ftUS)
    StatePlaneRow{3493, 26943, 9001, 4759}, // NAD83(NSRS2007) / California zone 3
    StatePlaneRow{3494, 26943, 9003, 4759}, // NAD83(NSRS2007) / California zone 3 (ftUS)
    StatePlaneRow{3495, 26944, 9001, 4759}, // NAD83(NSRS2007) / California zone 4
    StatePlaneRow{3496, 26944, 9003, 4759}, // NAD83(NSRS2007) / California zone 4 (ftUS)
    StatePlaneRow{3497, 26945, 9001, 4759}, // NAD83(NSRS2007) / California zone 5
    StatePlaneRow{3498, 26945, 9003, 4759}, // NAD83(NSRS2007) / California zone 5 (ftUS)
    StatePlaneRow{3499, 26946, 9001, 4759}, // NAD83(NSRS2007) / California zone 6
    StatePlaneRow{3500, 26946, 9003, 4759}, // NAD83(NSRS2007) / California zone 6 (ftUS)
    StatePlaneRow{3501, 26954, 9001, 4759}, // NAD83(NSRS2007) / Colorado Central
    StatePlaneRow{3502, 26954, 9003, 4759}, // NAD83(NSRS2007) / Colorado Central (ftUS)
    StatePlaneRow{3503, 26953, 9001, 4759}, // NAD83(NSRS2007) / Colorado North
    StatePlaneRow{3504, 26953, 9003, 4759}, // NAD83(NSRS2007) / Colorado North (ftUS)
    StatePlaneRow{3505, 26955, 9001, 4759}, // NAD83(NSRS2007) / Colorado South
    StatePlaneRow{3506, 26955, 9003, 4759}, // NAD83(NSRS2007) / Colorado South (ftUS)
    StatePlaneRow{3507, 26956, 9001, 4759}, // NAD83(NSRS2007) / Connecticut
    StatePlaneRow{3508, 26956, 9003, 4759}, // NAD83(NSRS2007) / Connecticut (ftUS)
    StatePlaneRow{3509, 26957, 9001, 4759}, // NAD83(NSRS2007) / Delaware
    StatePlaneRow{3510, 26957, 9003, 4759}, // NAD83(NSRS2007) / Delaware (ftUS)
    StatePlaneRow{3511, 26958, 9001, 4759}, // NAD83(NSRS2007) / Florida East
    StatePlaneRow{3512, 26958, 9003, 4759}, // NAD83(NSRS2007) / Florida East (ftUS)
    StatePlaneRow{3514, 26960, 9001, 4759}, // NAD83(NSRS2007) / Florida North
    StatePlaneRow{3515, 26960, 9003, 4759}, // NAD83(NSRS2007) / Florida North (ftUS)
    StatePlaneRow{3516, 26959, 9001, 4759}, // NAD83(NSRS2007) / Florida West
    StatePlaneRow{3517, 26959, 9003, 4759}, // NAD83(NSRS2007) / Florida West (ftUS)
    StatePlaneRow{3518, 26966, 9001, 4759}, // NAD83(NSRS2007) / Georgia East
    StatePlaneRow{3519, 26966, 9003, 4759}, // NAD83(NSRS2007) / Georgia East (ftUS)
    StatePlaneRow{3520, 26967, 9001, 4759}, // NAD83(NSRS2007) / Georgia West
    StatePlaneRow{3521, 26967, 9003, 4759}, // NAD83(NSRS2007) / Georgia West (ftUS)
    StatePlaneRow{3522, 26969, 9001, 4759}, // NAD83(NSRS2007) / Idaho Central
    StatePlaneRow{3523, 26969, 9003, 4759}, // NAD83(NSRS2007) / Idaho Central (ftUS)
    StatePlaneRow{3524, 26968, 9001, 4759}, // NAD83(NSRS2007) / Idaho East
    StatePlaneRow{3525, 26968, 9003, 4759}, // NAD83(NSRS2007) / Idaho East (ftUS)
    StatePlaneRow{3526, 26970, 9001, 4759}, // NAD83(NSRS2007) / Idaho West
    StatePlaneRow{3527, 26970, 9003, 4759}, // NAD83(NSRS2007) / Idaho West (ftUS)
    StatePlaneRow{3528, 26971, 9001, 4759}, // NAD83(NSRS2007) / Illinois East
    StatePlaneRow{3529, 26971, 9003, 4759}, // NAD83(NSRS2007) / Illinois East (ftUS)
    StatePlaneRow{3530, 26972, 9001, 4759}, // NAD83(NSRS2007) / Illinois West
    StatePlaneRow{3531, 26972, 9003, 4759}, // NAD83(NSRS2007) / Illinois West (ftUS)
    StatePlaneRow{3532, 26973, 9001, 4759}, // NAD83(NSRS2007) / Indiana East
    StatePlaneRow{3533, 26973, 9003, 4759}, // NAD83(NSRS2007) / Indiana East (ftUS)
    StatePlaneRow{3534, 26974, 9001, 4759}, // NAD83(NSRS2007) / Indiana West
    StatePlaneRow{3535, 26974, 9003, 4759}, // NAD83(NSRS2007) / Indiana West (ftUS)
    StatePlaneRow{3536, 26975, 9001, 4759}, // NAD83(NSRS2007) / Iowa North
    StatePlaneRow{3537, 26975, 9003, 4759}, // NAD83(NSRS2007) / Iowa North (ftUS)
    StatePlaneRow{3538, 26976, 9001, 4759}, // NAD83(NSRS2007) / Iowa South
    StatePlaneRow{3539, 26976, 9003, 4759}, // NAD83(NSRS2007) / Iowa South (ftUS)
    StatePlaneRow{3540, 26977, 9001, 4759}, // NAD83(NSRS2007) / Kansas North
    StatePlaneRow{3541, 26977, 9003, 4759}, // NAD83(NSRS2007) / Kansas North (ftUS)
    StatePlaneRow{3542, 26978, 9001, 4759}, // NAD83(NSRS2007) / Kansas South
    StatePlaneRow{3543, 26978, 9003, 4759}, // NAD83(NSRS2007) / Kansas South (ftUS)
    StatePlaneRow{3548, 26980, 9001, 4759}, // NAD83(NSRS2007) / Kentucky South
    StatePlaneRow{3549, 26980, 9003, 4759}, // NAD83(NSRS2007) / Kentucky South (ftUS)
    StatePlaneRow{3550, 26981, 9001, 4759}, // NAD83(NSRS2007) / Louisiana North
    StatePlaneRow{3551, 26981, 9003, 4759}, // NAD83(NSRS2007) / Louisiana North (ftUS)
    StatePlaneRow{3552, 26982, 9001, 4759}, // NAD83(NSRS2007) / Louisiana South
    StatePlaneRow{3553, 26982, 9003, 4759}, // NAD83(NSRS2007) / Louisiana South (ftUS)
    StatePlaneRow{3557, 26983, 9001, 4759}, // NAD83(NSRS2007) / Maine East
    StatePlaneRow{3558, 26984, 9001, 4759}, // NAD83(NSRS2007) / Maine West
    StatePlaneRow{3559, 26985, 9001, 4759}, // NAD83(NSRS2007) / Maryland
    StatePlaneRow{3560, 32142, 9003, 4269}, // NAD83 / Utah North (ftUS)
    StatePlaneRow{3566, 32143, 9003, 4269}, // NAD83 / Utah Central (ftUS)
    StatePlaneRow{3567, 32144, 9003, 4269}, // NAD83 / Utah South (ftUS)
    StatePlaneRow{3568, 32142, 9003, 4152}, // NAD83(HARN) / Utah North (ftUS)
    StatePlaneRow{3569, 32143, 9003, 4152}, // NAD83(HARN) / Utah Central (ftUS)
    StatePlaneRow{3570, 32144, 9003, 4152}, // NAD83(HARN) / Utah South (ftUS)
    StatePlaneRow{3582, 26985, 9003, 4759}, // NAD83(NSRS2007) / Maryland (ftUS)
    StatePlaneRow{3583, 26987, 9001, 4759}, // NAD83(NSRS2007) / Massachusetts Island
    StatePlaneRow{3584, 26987, 9003, 4759}, // NAD83(NSRS2007) / Massachusetts Island (ftUS)
    StatePlaneRow{3585, 26986, 9001, 4759}, // NAD83(NSRS2007) / Massachusetts Mainland
    StatePlaneRow{3586, 26986, 9003, 4759}, // NAD83(NSRS2007) / Massachusetts Mainland (ftUS)
    StatePlaneRow{3587, 26989, 9001, 4759}, // NAD83(NSRS2007) / Michigan Central
    StatePlaneRow{3588, 26989, 9002, 4759}, // NAD83(NSRS2007) / Michigan Central (ft)
    StatePlaneRow{3589, 26988, 9001, 4759}, // NAD83(NSRS2007) / Michigan North
    StatePlaneRow{3590, 26988, 9002, 4759}, // NAD83(NSRS2007) / Michigan North (ft)
    StatePlaneRow{3592, 26990, 9001, 4759}, // NAD83(NSRS2007) / Michigan South
    StatePlaneRow{3593, 26990, 9002, 4759}, // NAD83(NSRS2007) / Michigan South (ft)
    StatePlaneRow{3594, 26992, 9001, 4759}, // NAD83(NSRS2007) / Minnesota Central
    StatePlaneRow{3595, 26991, 9001, 4759}, // NAD83(NSRS2007) / Minnesota North
    StatePlaneRow{3596, 26993, 9001, 4759}, // NAD83(NSRS2007) / Minnesota South
    StatePlaneRow{3597, 26994, 9001, 4759}, // NAD83(NSRS2007) / Mississippi East
    StatePlaneRow{3598, 26994, 9003, 4759}, // NAD83(NSRS2007) / Mississippi East (ftUS)
    StatePlaneRow{3599, 26995, 9001, 4759}, // NAD83(NSRS2007) / Mississippi West
    StatePlaneRow{3600, 26995, 9003, 4759}, // NAD83(NSRS2007) / Mississippi West (ftUS)
    StatePlaneRow{3601, 26997, 9001, 4759}, // NAD83(NSRS2007) / Missouri Central
    StatePlaneRow{3602, 26996, 9001, 4759}, // NAD83(NSRS2007) / Missouri East
    StatePlaneRow{3603, 26998, 9001, 4759}, // NAD83(NSRS2007) / Missouri West
    StatePlaneRow{3604, 32100, 9001, 4759}, // NAD83(NSRS2007) / Montana
    StatePlaneRow{3605, 32100, 9002, 4759}, // NAD83(NSRS2007) / Montana (ft)
    StatePlaneRow{3606, 32104, 9001, 4759}, // NAD83(NSRS2007) / Nebraska
    StatePlaneRow{3607, 32108, 9001, 4759}, // NAD83(NSRS2007) / Nevada Central
    StatePlaneRow{3608, 32108, 9003, 4759}, // NAD83(NSRS2007) / Nevada Central (ftUS)
    StatePlaneRow{3609, 32107, 9001, 4759}, // NAD83(NSRS2007) / Nevada East
    StatePlaneRow{3610, 32107, 9003, 4759}, // NAD83(NSRS2007) / Nevada East (ftUS)
    StatePlaneRow{3611, 32109, 9001, 4759}, // NAD83(NSRS2007) / Nevada West
    StatePlaneRow{3612, 32109, 9003, 4759}, // NAD83(NSRS2007) / Nevada West (ftUS)
    StatePlaneRow{3613, 32110, 9001, 4759}, // NAD83(NSRS2007) / New Hampshire
    StatePlaneRow{3614, 32110, 9003, 4759}, // NAD83(NSRS2007) / New Hampshire (ftUS)
    StatePlaneRow{3615, 32111, 9001, 4759}, // NAD83(NSRS2007) / New Jersey
    StatePlaneRow{3616, 32111, 9003, 4759}, // NAD83(NSRS2007) / New Jersey (ftUS)
    StatePlaneRow{3617, 32113, 9001, 4759}, // NAD83(NSRS2007) / New Mexico Central
    StatePlaneRow{3618, 32113, 9003, 4759}, // NAD83(NSRS2007) / New Mexico Central (ftUS)
    StatePlaneRow{3619, 32112, 9001, 4759}, // NAD83(NSRS2007) / New Mexico East
    StatePlaneRow{3620, 32112, 9003, 4759}, // NAD83(NSRS2007) / New Mexico East (ftUS)
    StatePlaneRow{3621, 32114, 9001, 4759}, // NAD83(NSRS2007) / New Mexico West
    StatePlaneRow{3622, 32114, 9003, 4759}, // NAD83(NSRS2007) / New Mexico West (ftUS)
    StatePlaneRow{3623, 32116, 9001, 4759}, // NAD83(NSRS2007) / New York Central
    StatePlaneRow{3624, 32116, 9003, 4759}, // NAD83(NSRS2007) / New York Central (ftUS)
    StatePlaneRow{3625, 32115, 9001, 4759}, // NAD83(NSRS2007) / New York East
    StatePlaneRow{3626, 32115, 9003, 4759}, // NAD83(NSRS2007) / New York East (ftUS)
    StatePlaneRow{3627, 32118, 9001, 4759}, // NAD83(NSRS2007) / New York Long Island
    StatePlaneRow{3628, 32118, 9003, 4759}, // NAD83(NSRS2007) / New York Long Island (ftUS)
    StatePlaneRow{3629, 32117, 9001, 4759}, // NAD83(NSRS2007) / New York West
    StatePlaneRow{3630, 32117, 9003, 4759}, // NAD83(NSRS2007) / New York West (ftUS)
    StatePlaneRow{3631, 32119, 9001, 4759}, // NAD83(NSRS2007) / North Carolina
    StatePlaneRow{3633, 32120, 9001, 4759}, // NAD83(NSRS2007) / North Dakota North
    StatePlaneRow{3634, 32120, 9002, 4759}, // NAD83(NSRS2007) / North Dakota North (ft)
    StatePlaneRow{3635, 32121, 9001, 4759}, // NAD83(NSRS2007) / North Dakota South
    StatePlaneRow{3636, 32121, 9002, 4759}, // NAD83(NSRS2007) / North Dakota South (ft)
    StatePlaneRow{3637, 32122, 9001, 4759}, // NAD83(NSRS2007) / Ohio North
    StatePlaneRow{3638, 32123, 9001, 4759}, // NAD83(NSRS2007) / Ohio South
    StatePlaneRow{3639, 32124, 9001, 4759}, // NAD83(NSRS2007) / Oklahoma North
    StatePlaneRow{3640, 32124, 9003, 4759}, // NAD83(NSRS2007) / Oklahoma North (ftUS)
    StatePlaneRow{3641, 32125, 9001, 4759}, // NAD83(NSRS2007) / Oklahoma South
    StatePlaneRow{3642, 32125, 9003, 4759}, // NAD83(NSRS2007) / Oklahoma South (ftUS)
    StatePlaneRow{3645, 32126, 9001, 4759}, // NAD83(NSRS2007) / Oregon North
    StatePlaneRow{3646, 32126, 9002, 4759}, // NAD83(NSRS2007) / Oregon North (ft)
    StatePlaneRow{3647, 32127, 9001, 4759}, // NAD83(NSRS2007) / Oregon South
    StatePlaneRow{3648, 32127, 9002, 4759}, // NAD83(NSRS2007) / Oregon South (ft)
    StatePlaneRow{3649, 32128, 9001, 4759}, // NAD83(NSRS2007) / Pennsylvania North
    StatePlaneRow{3650, 32128, 9003, 4759}, // NAD83(NSRS2007) / Pennsylvania North (ftUS)
    StatePlaneRow{3651, 32129, 9001, 4759}, // NAD83(NSRS2007) / Pennsylvania South
    StatePlaneRow{3652, 32129, 9003, 4759}, // NAD83(NSRS2007) / Pennsylvania South (ftUS)
    StatePlaneRow{3653, 32130, 9001, 4759}, // NAD83(NSRS2007) / Rhode Island
    StatePlaneRow{3654, 32130, 9003, 4759}, // NAD83(NSRS2007) / Rhode Island (ftUS)
    StatePlaneRow{3655, 32133, 9001, 4759}, // NAD83(NSRS2007) / South Carolina
    StatePlaneRow{3656, 32133, 9002, 4759}, // NAD83(NSRS2007) / South Carolina (ft)
    StatePlaneRow{3657, 32134, 9001, 4759}, // NAD83(NSRS2007) / South Dakota North
    StatePlaneRow{3658, 32134, 9003, 4759}, // NAD83(NSRS2007) / South Dakota North (ftUS)
    StatePlaneRow{3659, 32135, 9001, 4759}, // NAD83(NSRS2007) / South Dakota South
    StatePlaneRow{3660, 32135, 9003, 4759}, // NAD83(NSRS2007) / South Dakota South (ftUS)
    StatePlaneRow{3661, 32136, 9001, 4759}, // NAD83(NSRS2007) / Tennessee
    StatePlaneRow{3662, 32136, 9003, 4759}, // NAD83(NSRS2007) / Tennessee (ftUS)
    StatePlaneRow{3663, 32139, 9001, 4759}, // NAD83(NSRS2007) / Texas Central
    StatePlaneRow{3664, 32139, 9003, 4759}, // NAD83(NSRS2007) / Texas Central (ftUS)
    StatePlaneRow{3667, 32137, 9001, 4759}, // NAD83(NSRS2007) / Texas North
    StatePlaneRow{3668, 32137, 9003, 4759}, // NAD83(NSRS2007) / Texas North (ftUS)
    StatePlaneRow{3669, 32138, 9001, 4759}, // NAD83(NSRS2007) / Texas North Central
    StatePlaneRow{3670, 32138, 9003, 4759}, // NAD83(NSRS2007) / Texas North Central (ftUS)
    StatePlaneRow{3671, 32141, 9001, 4759}, // NAD83(NSRS2007) / Texas South
    StatePlaneRow{3672, 32141, 9003, 4759}, // NAD83(NSRS2007) / Texas South (ftUS)
    StatePlaneRow{3673, 32140, 9001, 4759}, // NAD83(NSRS2007) / Texas South Central
    StatePlaneRow{3674, 32140, 9003, 4759}, // NAD83(NSRS2007) / Texas South Central (ftUS)
    StatePlaneRow{3675, 32143, 9001, 4759}, // NAD83(NSRS2007) / Utah Central
    StatePlaneRow{3676, 32143, 9002, 4759}, // NAD83(NSRS2007) / Utah Central (ft)
    StatePlaneRow{3677, 32143, 9003, 4759}, // NAD83(NSRS2007) / Utah Central (ftUS)
    StatePlaneRow{3678, 32142, 9001, 4759}, // NAD83(NSRS2007) / Utah North
    StatePlaneRow{3679, 32142, 9002, 4759}, // NAD83(NSRS2007) / Utah North (ft)
    StatePlaneRow{3680, 32142, 9003, 4759}, // NAD83(NSRS2007) / Utah North (ftUS)
    StatePlaneRow{3681, 32144, 9001, 4759}, // NAD83(NSRS2007) / Utah South
    StatePlaneRow{3682, 32144, 9002, 4759}, // NAD83(NSRS2007) / Utah South (ft)
    StatePlaneRow{3683, 32144, 9003, 4759}, // NAD83(NSRS2007) / Utah South (ftUS)
    StatePlaneRow{3684, 32145, 9001, 4759}, // NAD83(NSRS2007) / Vermont
    StatePlaneRow{3685, 32146, 9001, 4759}, // NAD83(NSRS2007) / Virginia North
    StatePlaneRow{3686, 32146, 9003, 4759}, // NAD83(NSRS2007) / Virginia North (ftUS)
    StatePlaneRow{3687, 32147, 9001, 4759}, // NAD83(NSRS2007) / Virginia South
    StatePlaneRow{3688, 32147, 9003, 4759}, // NAD83(NSRS2007) / Virginia South (ftUS)
    StatePlaneRow{3689, 32148, 9001, 4759}, // NAD83(NSRS2007) / Washington North
    StatePlaneRow{3690, 32148, 9003, 4759}, // NAD83(NSRS2007) / Washington North (ftUS)
    StatePlaneRow{3691, 32149, 9001, 4759}, // NAD83(NSRS2007) / Washington South
    StatePlaneRow{3692, 32149, 9003, 4759}, // NAD83(NSRS2007) / Washington South (ftUS)
    StatePlaneRow{3693, 32150, 9001, 4759}, // NAD83(NSRS2007) / West Virginia North
    StatePlaneRow{3694, 32151, 9001, 4759}, // NAD83(NSRS2007) / West Virginia South
    StatePlaneRow{3695, 32153, 9001, 4759}, // NAD83(NSRS2007) / Wisconsin Central
    StatePlaneRow{3696, 32153, 9003, 4759}, // NAD83(NSRS2007) / Wisconsin Central (ftUS)
    StatePlaneRow{3697, 32152, 9001, 4759}, // NAD83(NSRS2007) / Wisconsin North
    StatePlaneRow{3698, 32152, 9003, 4759}, // NAD83(NSRS2007) / Wisconsin North (ftUS)
    StatePlaneRow{3699, 32154, 9001, 4759}, // NAD83(NSRS2007) / Wisconsin South
    StatePlaneRow{3700, 32154, 9003, 4759}, // NAD83(NSRS2007) / Wisconsin South (ftUS)
    StatePlaneRow{3702, 32155, 9001, 4759}, // NAD83(NSRS2007) / Wyoming East
    StatePlaneRow{3703, 32156, 9001, 4759}, // NAD83(NSRS2007) / Wyoming East Central
    StatePlaneRow{3704, 32157, 9001, 4759}, // NAD83(NSRS2007) / Wyoming West Central
    StatePlaneRow{3705, 32158, 9001, 4759}, // NAD83(NSRS2007) / Wyoming West
    StatePlaneRow{3728, 32122, 9003, 4759}, // NAD83(NSRS2007) / Ohio North (ftUS)
    StatePlaneRow{3729, 32123, 9003, 4759}, // NAD83(NSRS2007) / Ohio South (ftUS)
    StatePlaneRow{3730, 32155, 9003, 4759}, // NAD83(NSRS2007) / Wyoming East (ftUS)
    StatePlaneRow{3731, 32156, 9003, 4759}, // NAD83(NSRS2007) / Wyoming East Central (ftUS)
    StatePlaneRow{3732, 32157, 9003, 4759}, // NAD83(NSRS2007) / Wyoming West Central (ftUS)
    StatePlaneRow{3733, 32158, 9003, 4759}, // NAD83(NSRS2007) / Wyoming West (ftUS)
    StatePlaneRow{3734, 32122, 9003, 4269}, // NAD83 / Ohio North (ftUS)
    StatePlaneRow{3735, 32123, 9003, 4269}, // NAD83 / Ohio South (ftUS)
    StatePlaneRow{3736, 32155, 9003, 4269}, // NAD83 / Wyoming East (ftUS)
    StatePlaneRow{3737, 32156, 9003, 4269}, // NAD83 / Wyoming East Central (ftUS)
    StatePlaneRow{3738, 32157, 9003, 4269}, // NAD83 / Wyoming West Central (ftUS)
    StatePlaneRow{3739, 32158, 9003, 4269}, // NAD83 / Wyoming West (ftUS)
    StatePlaneRow{3753, 32122, 9003, 4152}, // NAD83(HARN) / Ohio North (ftUS)
    StatePlaneRow{3754, 32123, 9003, 4152}, // NAD83(HARN) / Ohio South (ftUS)
    StatePlaneRow{3755, 32155, 9003, 4152}, // NAD83(HARN) / Wyoming East (ftUS)
    StatePlaneRow{3756, 32156, 9003, 4152}, // NAD83(HARN) / Wyoming East Central (ftUS)
    StatePlaneRow{3757, 32157, 9003, 4152}, // NAD83(HARN) / Wyoming West Central (ftUS)
    StatePlaneRow{3758, 32158, 9003, 4152}, // NAD83(HARN) / Wyoming West (ftUS)
    StatePlaneRow{3759, 26963, 9003, 4269}, // NAD83 / Hawaii zone 3 (ftUS)
    StatePlaneRow{3760, 26963, 9003, 4152}, // NAD83(HARN) / Hawaii zone 3 (ftUS)
    StatePlaneRow{4457, 32134, 9003, 4269}, // NAD83 / South Dakota North (ftUS)
    StatePlaneRow{5646, 32145, 9003, 4269}, // NAD83 / Vermont (ftUS)
    StatePlaneRow{5654, 32145, 9003, 4152}, // NAD83(HARN) / Vermont (ftUS)
    StatePlaneRow{5655, 32145, 9003, 4759}, // NAD83(NSRS2007) / Vermont (ftUS)
    StatePlaneRow{6355, 26929, 9001, 6318}, // NAD83(2011) / Alabama East
    StatePlaneRow{6356, 26930, 9001, 6318}, // NAD83(2011) / Alabama West
    StatePlaneRow{6394, 26931, 9001, 6318}, // NAD83(2011) / Alaska zone 1
    StatePlaneRow{6395, 26932, 9001, 6318}, // NAD83(2011) / Alaska zone 2
    StatePlaneRow{6396, 26933, 9001, 6318}, // NAD83(2011) / Alaska zone 3
    StatePlaneRow{6397, 26934, 9001, 6318}, // NAD83(2011) / Alaska zone 4
    StatePlaneRow{6398, 26935, 9001, 6318}, // NAD83(2011) / Alaska zone 5
    StatePlaneRow{6399, 26936, 9001, 6318}, // NAD83(2011) / Alaska zone 6
    StatePlaneRow{6400, 26937, 9001, 6318}, // NAD83(2011) / Alaska zone 7
    StatePlaneRow{6401, 26938, 9001, 6318}, // NAD83(2011) / Alaska zone 8
    StatePlaneRow{6402, 26939, 9001, 6318}, // NAD83(2011) / Alaska zone 9
    StatePlaneRow{6403, 26940, 9001, 6318}, // NAD83(2011) / Alaska zone 10
    StatePlaneRow{6404, 26949, 9001, 6318}, // NAD83(2011) / Arizona Central
    StatePlaneRow{6405, 26949, 9002, 6318}, // NAD83(2011) / Arizona Central (ft)
    StatePlaneRow{6406, 26948, 9001, 6318}, // NAD83(2011) / Arizona East
    StatePlaneRow{6407, 26948, 9002, 6318}, // NAD83(2011) / Arizona East (ft)
    StatePlaneRow{6408, 26950, 9001, 6318}, // NAD83(2011) / Arizona West
    StatePlaneRow{6409, 26950, 9002, 6318}, // NAD83(2011) / Arizona West (ft)
    StatePlaneRow{6410, 26951, 9001, 6318}, // NAD83(2011) / Arkansas North
    StatePlaneRow{6411, 26951, 9003, 6318}, // NAD83(2011) / Arkansas North (ftUS)
    StatePlaneRow{6412, 26952, 9001, 6318}, // NAD83(2011) / Arkansas South
    StatePlaneRow{6413, 26952, 9003, 6318}, // NAD83(2011) / Arkansas South (ftUS)
    StatePlaneRow{6415, 26941, 9001, 6318}, // NAD83(2011) / California zone 1
    StatePlaneRow{6416, 26941, 9003, 6318}, // NAD83(2011) / California zone 1 (ftUS)
    StatePlaneRow{6417, 26942, 9001, 6318}, // NAD83(2011) / California zone 2
    StatePlaneRow{6418, 26942, 9003, 6318}, // NAD83(2011) / California zone 2 (ftUS)
    StatePlaneRow{6419, 26943, 9001, 6318}, // NAD83(2011) / California zone 3
    StatePlaneRow{6420, 26943, 9003, 6318}, // NAD83(2011) / California zone 3 (ftUS)
    StatePlaneRow{6421, 26944, 9001, 6318}, // NAD83(2011) / California zone 4
    StatePlaneRow{6422, 26944, 9003, 6318}, // NAD83(2011) / California zone 4 (ftUS)
    StatePlaneRow{6423, 26945, 9001, 6318}, // NAD83(2011) / California zone 5
    StatePlaneRow{6424, 26945, 9003, 6318}, // NAD83(2011) / California zone 5 (ftUS)
    StatePlaneRow{6425, 26946, 9001, 6318}, // NAD83(2011) / California zone 6
    StatePlaneRow{6426, 26946, 9003, 6318}, // NAD83(2011) / California zone 6 (ftUS)
    StatePlaneRow{6427, 26954, 9001, 6318}, // NAD83(2011) / Colorado Central
    StatePlaneRow{6428, 26954, 9003, 6318}, // NAD83(2011) / Colorado Central (ftUS)
    StatePlaneRow{6429, 26953, 9001, 6318}, // NAD83(2011) / Colorado North
    StatePlaneRow{6430, 26953, 9003, 6318}, // NAD83(2011) / Colorado North (ftUS)
    StatePlaneRow{6431, 26955, 9001, 6318}, // NAD83(2011) / Colorado South
    StatePlaneRow{6432, 26955, 9003, 6318}, // NAD83(2011) / Colorado South (ftUS)
    StatePlaneRow{6433, 26956, 9001, 6318}, // NAD83(2011) / Connecticut
    StatePlaneRow{6434, 26956, 9003, 6318}, // NAD83(2011) / Connecticut (ftUS)
    StatePlaneRow{6435, 26957, 9001, 6318}, // NAD83(2011) / Delaware
    StatePlaneRow{6436, 26957, 9003, 6318}, // NAD83(2011) / Delaware (ftUS)
    StatePlaneRow{6437, 26958, 9001, 6318}, // NAD83(2011) / Florida East
    StatePlaneRow{6438, 26958, 9003, 6318}, // NAD83(2011) / Florida East (ftUS)
    StatePlaneRow{6440, 26960, 9001, 6318}, // NAD83(2011) / Florida North
    StatePlaneRow{6441, 26960, 9003, 6318}, // NAD83(2011) / Florida North (ftUS)
    StatePlaneRow{6442, 26959, 9001, 6318}, // NAD83(2011) / Florida West
    StatePlaneRow{6443, 26959, 9003, 6318}, // NAD83(2011) / Florida West (ftUS)
    StatePlaneRow{6444, 26966, 9001, 6318}, // NAD83(2011) / Georgia East
    StatePlaneRow{6445, 26966, 9003, 6318}, // NAD83(2011) / Georgia East (ftUS)
    StatePlaneRow{6446, 26967, 9001, 6318}, // NAD83(2011) / Georgia West
    StatePlaneRow{6447, 26967, 9003, 6318}, // NAD83(2011) / Georgia West (ftUS)
    StatePlaneRow{6448, 26969, 9001, 6318}, // NAD83(2011) / Idaho Central
    StatePlaneRow{6449, 26969, 9003, 6318}, // NAD83(2011) / Idaho Central (ftUS)
    StatePlaneRow{6450, 26968, 9001, 6318}, // NAD83(2011) / Idaho East
    StatePlaneRow{6451, 26968, 9003, 6318}, // NAD83(2011) / Idaho East (ftUS)
    StatePlaneRow{6452, 26970, 9001, 6318}, // NAD83(2011) / Idaho West
    StatePlaneRow{6453, 26970, 9003, 6318}, // NAD83(2011) / Idaho West (ftUS)
    StatePlaneRow{6454, 26971, 9001, 6318}, // NAD83(2011) / Illinois East
    StatePlaneRow{6455, 26971, 9003, 6318}, // NAD83(2011) / Illinois East (ftUS)
    StatePlaneRow{6456, 26972, 9001, 6318}, // NAD83(2011) / Illinois West
    StatePlaneRow{6457, 26972, 9003, 6318}, // NAD83(2011) / Illinois West (ftUS)
    StatePlaneRow{6458, 26973, 9001, 6318}, // NAD83(2011) / Indiana East
    StatePlaneRow{6459, 26973, 9003, 6318}, // NAD83(2011) / Indiana East (ftUS)
    StatePlaneRow{6460, 26974, 9001, 6318}, // NAD83(2011) / Indiana West
    StatePlaneRow{6461, 26974, 9003, 6318}, // NAD83(2011) / Indiana West (ftUS)
    StatePlaneRow{6462, 26975, 9001, 6318}, // NAD83(2011) / Iowa North
    StatePlaneRow{6463, 26975, 9003, 6318}, // NAD83(2011) / Iowa North (ftUS)
    StatePlaneRow{6464, 26976, 9001, 6318}, // NAD83(2011) / Iowa South
    StatePlaneRow{6465, 26976, 9003, 6318}, // NAD83(2011) / Iowa South (ftUS)
    StatePlaneRow{6466, 26977, 9001, 6318}, // NAD83(2011) / Kansas North
    StatePlaneRow{6467, 26977, 9003, 6318}, // NAD83(2011) / Kansas North (ftUS)
    StatePlaneRow{6468, 26978, 9001, 6318}, // NAD83(2011) / Kansas South
    StatePlaneRow{6469, 26978, 9003, 6318}, // NAD83(2011) / Kansas South (ftUS)
    StatePlaneRow{6474, 26980, 9001, 6318}, // NAD83(2011) / Kentucky South
    StatePlaneRow{6475, 26980, 9003, 6318}, // NAD83(2011) / Kentucky South (ftUS)
    StatePlaneRow{6476, 26981, 9001, 6318}, // NAD83(2011) / Louisiana North
    StatePlaneRow{6477, 26981, 9003, 6318}, // NAD83(2011) / Louisiana North (ftUS)
    StatePlaneRow{6478, 26982, 9001, 6318}, // NAD83(2011) / Louisiana South
    StatePlaneRow{6479, 26982, 9003, 6318}, // NAD83(2011) / Louisiana South (ftUS)
    StatePlaneRow{6483, 26983, 9001, 6318}, // NAD83(2011) / Maine East
    StatePlaneRow{6484, 26983, 9003, 6318}, // NAD83(2011) / Maine East (ftUS)
    StatePlaneRow{6485, 26984, 9001, 6318}, // NAD83(2011) / Maine West
    StatePlaneRow{6486, 26984, 9003, 6318}, // NAD83(2011) / Maine West (ftUS)
    StatePlaneRow{6487, 26985, 9001, 6318}, // NAD83(2011) / Maryland
    StatePlaneRow{6488, 26985, 9003, 6318}, // NAD83(2011) / Maryland (ftUS)
    StatePlaneRow{6489, 26987, 9001, 6318}, // NAD83(2011) / Massachusetts Island
    StatePlaneRow{6490, 26987, 9003, 6318}, // NAD83(2011) / Massachusetts Island (ftUS)
    StatePlaneRow{6491, 26986, 9001, 6318}, // NAD83(2011) / Massachusetts Mainland
    StatePlaneRow{6492, 26986, 9003, 6318}, // NAD83(2011) / Massachusetts Mainland (ftUS)
    StatePlaneRow{6493, 26989, 9001, 6318}, // NAD83(2011) / Michigan Central
    StatePlaneRow{6494, 26989, 9002, 6318}, // NAD83(2011) / Michigan Central (ft)
    StatePlaneRow{6495, 26988, 9001, 6318}, // NAD83(2011) / Michigan North
    StatePlaneRow{6496, 26988, 9002, 6318}, // NAD83(2011) / Michigan North (ft)
    StatePlaneRow{6498, 26990, 9001, 6318}, // NAD83(2011) / Michigan South
    StatePlaneRow{6499, 26990, 9002, 6318}, // NAD83(2011) / Michigan South (ft)
    StatePlaneRow{6500, 26992, 9001, 6318}, // NAD83(2011) / Minnesota Central
    StatePlaneRow{6501, 26992, 9003, 6318}, // NAD83(2011) / Minnesota Central (ftUS)
    StatePlaneRow{6502, 26991, 9001, 6318}, // NAD83(2011) / Minnesota North
    StatePlaneRow{6503, 26991, 9003, 6318}, // NAD83(2011) / Minnesota North (ftUS)
    StatePlaneRow{6504, 26993, 9001, 6318}, // NAD83(2011) / Minnesota South
    StatePlaneRow{6505, 26993, 9003, 6318}, // NAD83(2011) / Minnesota South (ftUS)
    StatePlaneRow{6506, 26994, 9001, 6318}, // NAD83(2011) / Mississippi East
    StatePlaneRow{6507, 26994, 9003, 6318}, // NAD83(2011) / Mississippi East (ftUS)
    StatePlaneRow{6509, 26995, 9001, 6318}, // NAD83(2011) / Mississippi West
    StatePlaneRow{6510, 26995, 9003, 6318}, // NAD83(2011) / Mississippi West (ftUS)
    StatePlaneRow{6511, 26997, 9001, 6318}, // NAD83(2011) / Missouri Central
    StatePlaneRow{6512, 26996, 9001, 6318}, // NAD83(2011) / Missouri East
    StatePlaneRow{6513, 26998, 9001, 6318}, // NAD83(2011) / Missouri West
    StatePlaneRow{6514, 32100, 9001, 6318}, // NAD83(2011) / Montana
    StatePlaneRow{6515, 32100, 9002, 6318}, // NAD83(2011) / Montana (ft)
    StatePlaneRow{6516, 32104, 9001, 6318}, // NAD83(2011) / Nebraska
    StatePlaneRow{6517, 32104, 9003, 4759}, // NAD83(2011) / Nebraska (ftUS)
    StatePlaneRow{6518, 32108, 9001, 6318}, // NAD83(2011) / Nevada Central
    StatePlaneRow{6519, 32108, 9003, 6318}, // NAD83(2011) / Nevada Central (ftUS)
    StatePlaneRow{6520, 32107, 9001, 6318}, // NAD83(2011) / Nevada East
    StatePlaneRow{6521, 32107, 9003, 6318}, // NAD83(2011) / Nevada East (ftUS)
    StatePlaneRow{6522, 32109, 9001, 6318}, // NAD83(2011) / Nevada West
    StatePlaneRow{6523, 32109, 9003, 6318}, // NAD83(2011) / Nevada West (ftUS)
    StatePlaneRow{6524, 32110, 9001, 6318}, // NAD83(2011) / New Hampshire
    StatePlaneRow{6525, 32110, 9003, 6318}, // NAD83(2011) / New Hampshire (ftUS)
    StatePlaneRow{6526, 32111, 9001, 6318}, // NAD83(2011) / New Jersey
    StatePlaneRow{6527, 32111, 9003, 6318}, // NAD83(2011) / New Jersey (ftUS)
    StatePlaneRow{6528, 32113, 9001, 6318}, // NAD83(2011) / New Mexico Central
    StatePlaneRow{6529, 32113, 9003, 6318}, // NAD83(2011) / New Mexico Central (ftUS)
    StatePlaneRow{6530, 32112, 9001, 6318}, // NAD83(2011) / New Mexico East
    StatePlaneRow{6531, 32112, 9003, 6318}, // NAD83(2011) / New Mexico East (ftUS)
    StatePlaneRow{6532, 32114, 9001, 6318}, // NAD83(2011) / New Mexico West
    StatePlaneRow{6533, 32114, 9003, 6318}, // NAD83(2011) / New Mexico West (ftUS)
    StatePlaneRow{6534, 32116, 9001, 6318}, // NAD83(2011) / New York Central
    StatePlaneRow{6535, 32116, 9003, 6318}, // NAD83(2011) / New York Central (ftUS)
    StatePlaneRow{6536, 32115, 9001, 6318}, // NAD83(2011) / New York East
    StatePlaneRow{6537, 32115, 9003, 6318}, // NAD83(2011) / New York East (ftUS)
    StatePlaneRow{6538, 32118, 9001, 6318}, // NAD83(2011) / New York Long Island
    StatePlaneRow{6539, 32118, 9003, 6318}, // NAD83(2011) / New York Long Island (ftUS)
    StatePlaneRow{6540, 32117, 9001, 6318}, // NAD83(2011) / New York West
    StatePlaneRow{6541, 32117, 9003, 6318}, // NAD83(2011) / New York West (ftUS)
    StatePlaneRow{6542, 32119, 9001, 6318}, // NAD83(2011) / North Carolina
    StatePlaneRow{6544, 32120, 9001, 6318}, // NAD83(2011) / North Dakota North
    StatePlaneRow{6545, 32120, 9002, 6318}, // NAD83(2011) / North Dakota North (ft)
    StatePlaneRow{6546, 32121, 9001, 6318}, // NAD83(2011) / North Dakota South
    StatePlaneRow{6547, 32121, 9002, 6318}, // NAD83(2011) / North Dakota South (ft)
    StatePlaneRow{6548, 32122, 9001, 6318}, // NAD83(2011) / Ohio North
    StatePlaneRow{6549, 32122, 9003, 6318}, // NAD83(2011) / Ohio North (ftUS)
    StatePlaneRow{6550, 32123, 9001, 6318}, // NAD83(2011) / Ohio South
    StatePlaneRow{6551, 32123, 9003, 6318}, // NAD83(2011) / Ohio South (ftUS)
    StatePlaneRow{6552, 32124, 9001, 6318}, // NAD83(2011) / Oklahoma North
    StatePlaneRow{6553, 32124, 9003, 6318}, // NAD83(2011) / Oklahoma North (ftUS)
    StatePlaneRow{6554, 32125, 9001, 6318}, // NAD83(2011) / Oklahoma South
    StatePlaneRow{6555, 32125, 9003, 6318}, // NAD83(2011) / Oklahoma South (ftUS)
    StatePlaneRow{6558, 32126, 9001, 6318}, // NAD83(2011) / Oregon North
    StatePlaneRow{6559, 32126, 9002, 6318}, // NAD83(2011) / Oregon North (ft)
    StatePlaneRow{6560, 32127, 9001, 6318}, // NAD83(2011) / Oregon South
    StatePlaneRow{6561, 32127, 9002, 6318}, // NAD83(2011) / Oregon South (ft)
    StatePlaneRow{6562, 32128, 9001, 6318}, // NAD83(2011) / Pennsylvania North
    StatePlaneRow{6563, 32128, 9003, 6318}, // NAD83(2011) / Pennsylvania North (ftUS)
    StatePlaneRow{6564, 32129, 9001, 6318}, // NAD83(2011) / Pennsylvania South
    StatePlaneRow{6565, 32129, 9003, 6318}, // NAD83(2011) / Pennsylvania South (ftUS)
    StatePlaneRow{6567, 32130, 9001, 6318}, // NAD83(2011) / Rhode Island
    StatePlaneRow{6568, 32130, 9003, 6318}, // NAD83(2011) / Rhode Island (ftUS)
    StatePlaneRow{6569, 32133, 9001, 6318}, // NAD83(2011) / South Carolina
    StatePlaneRow{6570, 32133, 9002, 6318}, // NAD83(2011) / South Carolina (ft)
    StatePlaneRow{6571, 32134, 9001, 6318}, // NAD83(2011) / South Dakota North
    StatePlaneRow{6572, 32134, 9003, 6318}, // NAD83(2011) / South Dakota North (ftUS)
    StatePlaneRow{6573, 32135, 9001, 6318}, // NAD83(2011) / South Dakota South
    StatePlaneRow{6574, 32135, 9003, 6318}, // NAD83(2011) / South Dakota South (ftUS)
    StatePlaneRow{6575, 32136, 9001, 6318}, // NAD83(2011) / Tennessee
    StatePlaneRow{6576, 32136, 9003, 6318}, // NAD83(2011) / Tennessee (ftUS)
    StatePlaneRow{6577, 32139, 9001, 6318}, // NAD83(2011) / Texas Central
    StatePlaneRow{6578, 32139, 9003, 6318}, // NAD83(2011) / Texas Central (ftUS)
    StatePlaneRow{6581, 32137, 9001, 6318}, // NAD83(2011) / Texas North
    StatePlaneRow{6582, 32137, 9003, 6318}, // NAD83(2011) / Texas North (ftUS)
    StatePlaneRow{6583, 32138, 9001, 6318}, // NAD83(2011) / Texas North Central
    StatePlaneRow{6584, 32138, 9003, 6318}, // NAD83(2011) / Texas North Central (ftUS)
    StatePlaneRow{6585, 32141, 9001, 6318}, // NAD83(2011) / Texas South
    StatePlaneRow{6586, 32141, 9003, 6318}, // NAD83(2011) / Texas South (ftUS)
    StatePlaneRow{6587, 32140, 9001, 6318}, // NAD83(2011) / Texas South Central
    StatePlaneRow{6588, 32140, 9003, 6318}, // NAD83(2011) / Texas South Central (ftUS)
    StatePlaneRow{6589, 32145, 9001, 6318}, // NAD83(2011) / Vermont
    StatePlaneRow{6590, 32145, 9003, 6318}, // NAD83(2011) / Vermont (ftUS)
    StatePlaneRow{6592, 32146, 9001, 6318}, // NAD83(2011) / Virginia North
    StatePlaneRow{6593, 32146, 9003, 6318}, // NAD83(2011) / Virginia North (ftUS)
    StatePlaneRow{6594, 32147, 9001, 6318}, // NAD83(2011) / Virginia South
    StatePlaneRow{6595, 32147, 9003, 6318}, // NAD83(2011) / Virginia South (ftUS)
    StatePlaneRow{6596, 32148, 9001, 6318}, // NAD83(2011) / Washington North
    StatePlaneRow{6597, 32148, 9003, 6318}, // NAD83(2011) / Washington North (ftUS)
    StatePlaneRow{6598, 32149, 9001, 6318}, // NAD83(2011) / Washington South
    StatePlaneRow{6599, 32149, 9003, 6318}, // NAD83(2011) / Washington South (ftUS)
    StatePlaneRow{6600, 32150, 9001, 6318}, // NAD83(2011) / West Virginia North
    StatePlaneRow{6601, 32150, 9003, 6318}, // NAD83(2011) / West Virginia North (ftUS)
    StatePlaneRow{6602, 32151, 9001, 6318}, // NAD83(2011) / West Virginia South
    StatePlaneRow{6603, 32151, 9003, 6318}, // NAD83(2011) / West Virginia South (ftUS)
    StatePlaneRow{6604, 32153, 9001, 4759}, // NAD83(2011) / Wisconsin Central
    StatePlaneRow{6605, 32153, 9003, 6318}, // NAD83(2011) / Wisconsin Central (ftUS)
    StatePlaneRow{6606, 32152, 9001, 6318}, // NAD83(2011) / Wisconsin North
    StatePlaneRow{6607, 32152, 9003, 6318}, // NAD83(2011) / Wisconsin North (ftUS)
    StatePlaneRow{6608, 32154, 9001, 6318}, // NAD83(2011) / Wisconsin South
    StatePlaneRow{6609, 32154, 9003, 6318}, // NAD83(2011) / Wisconsin South (ftUS)
    StatePlaneRow{6611, 32155, 9001, 6318}, // NAD83(2011) / Wyoming East
    StatePlaneRow{6612, 32155, 9003, 6318}, // NAD83(2011) / Wyoming East (ftUS)
    StatePlaneRow{6613, 32156, 9001, 6318}, // NAD83(2011) / Wyoming East Central
    StatePlaneRow{6614, 32156, 9003, 6318}, // NAD83(2011) / Wyoming East Central (ftUS)
    StatePlaneRow{6615, 32158, 9001, 6318}, // NAD83(2011) / Wyoming West
    StatePlaneRow{6616, 32158, 9003, 6318}, // NAD83(2011) / Wyoming West (ftUS)
    StatePlaneRow{6617, 32157, 9001, 6318}, // NAD83(2011) / Wyoming West Central
    StatePlaneRow{6618, 32157, 9003, 6318}, // NAD83(2011) / Wyoming West Central (ftUS)
    StatePlaneRow{6619, 32143, 9001, 6318}, // NAD83(2011) / Utah Central
    StatePlaneRow{6620, 32142, 9001, 6318}, // NAD83(2011) / Utah North
    StatePlaneRow{6621, 32144, 9001, 6318}, // NAD83(2011) / Utah South
    StatePlaneRow{6625, 32143, 9003, 6318}, // NAD83(2011) / Utah Central (ftUS)
    StatePlaneRow{6626, 32142, 9003, 6318}, // NAD83(2011) / Utah North (ftUS)
    StatePlaneRow{6627, 32144, 9003, 6318}, // NAD83(2011) / Utah South (ftUS)
    StatePlaneRow{6628, 26961, 9001, 6322}, // NAD83(PA11) / Hawaii zone 1
    StatePlaneRow{6629, 26962, 9001, 6322}, // NAD83(PA11) / Hawaii zone 2
    StatePlaneRow{6630, 26963, 9001, 6322}, // NAD83(PA11) / Hawaii zone 3
    StatePlaneRow{6631, 26964, 9001, 6322}, // NAD83(PA11) / Hawaii zone 4
    StatePlaneRow{6632, 26965, 9001, 6322}, // NAD83(PA11) / Hawaii zone 5
    StatePlaneRow{6633, 26963, 9003, 6322}, // NAD83(PA11) / Hawaii zone 3 (ftUS)
    StatePlaneRow{6879, 32153, 9001, 6318}, // NAD83(2011) / Wisconsin Central
    StatePlaneRow{6880, 32104, 9003, 6318}, // NAD83(2011) / Nebraska (ftUS)
    StatePlaneRow{6884, 32126, 9001, 6783}, // NAD83(CORS96) / Oregon North
    StatePlaneRow{6885, 32126, 9002, 6783}, // NAD83(CORS96) / Oregon North (ft)
    StatePlaneRow{6886, 32127, 9001, 6783}, // NAD83(CORS96) / Oregon South
    StatePlaneRow{6887, 32127, 9002, 6783}, // NAD83(CORS96) / Oregon South (ft)
    StatePlaneRow{9748, 26929, 9003, 6318}, // NAD83(2011) / Alabama East (ftUS)
    StatePlaneRow{9749, 26930, 9003, 6318}, // NAD83(2011) / Alabama West (ftUS)
    StatePlaneRow{26814, 26983, 9001, 4269}, // NAD83 / Maine East (ftUS)
    StatePlaneRow{26815, 26984, 9001, 4269}, // NAD83 / Maine West (ftUS)
    StatePlaneRow{26819, 26991, 9001, 4269}, // NAD83 / Minnesota North (ftUS)
    StatePlaneRow{26820, 26992, 9001, 4269}, // NAD83 / Minnesota Central (ftUS)
    StatePlaneRow{26821, 26993, 9001, 4269}, // NAD83 / Minnesota South (ftUS)
    StatePlaneRow{26822, 32104, 9001, 4269}, // NAD83 / Nebraska (ftUS)
    StatePlaneRow{26825, 26983, 9001, 4152}, // NAD83(HARN) / Maine East (ftUS)
    StatePlaneRow{26826, 26984, 9001, 4152}, // NAD83(HARN) / Maine West (ftUS)
    StatePlaneRow{26830, 26991, 9001, 4152}, // NAD83(HARN) / Minnesota North (ftUS)
    StatePlaneRow{26831, 26992, 9001, 4152}, // NAD83(HARN) / Minnesota Central (ftUS)
    StatePlaneRow{26832, 26993, 9001, 4152}, // NAD83(HARN) / Minnesota South (ftUS)
    StatePlaneRow{26833, 32104, 9001, 4152}, // NAD83(HARN) / Nebraska (ftUS)
    StatePlaneRow{26836, 26983, 9001, 4759}, // NAD83(NSRS2007) / Maine East (ftUS)
    StatePlaneRow{26837, 26984, 9001, 4759}, // NAD83(NSRS2007) / Maine West (ftUS)
    StatePlaneRow{26841, 26991, 9001, 4759}, // NAD83(NSRS2007) / Minnesota North (ftUS)
    StatePlaneRow{26842, 26992, 9001, 4759}, // NAD83(NSRS2007) / Minnesota Central (ftUS)
    StatePlaneRow{26843, 26993, 9001, 4759}, // NAD83(NSRS2007) / Minnesota South (ftUS)
    StatePlaneRow{26844, 32104, 9001, 4759}, // NAD83(NSRS2007) / Nebraska (ftUS)
    StatePlaneRow{26847, 26983, 9003, 4269}, // NAD83 / Maine East (ftUS)
    StatePlaneRow{26848, 26984, 9003, 4269}, // NAD83 / Maine West (ftUS)
    StatePlaneRow{26849, 26991, 9003, 4269}, // NAD83 / Minnesota North (ftUS)
    StatePlaneRow{26850, 26992, 9003, 4269}, // NAD83 / Minnesota Central (ftUS)
    StatePlaneRow{26851, 26993, 9003, 4269}, // NAD83 / Minnesota South (ftUS)
    StatePlaneRow{26852, 32104, 9003, 4269}, // NAD83 / Nebraska (ftUS)
    StatePlaneRow{26853, 32150, 9003, 4269}, // NAD83 / West Virginia North (ftUS)
    StatePlaneRow{26854, 32151, 9003, 4269}, // NAD83 / West Virginia South (ftUS)
    StatePlaneRow{26855, 26983, 9003, 4152}, // NAD83(HARN) / Maine East (ftUS)
    StatePlaneRow{26856, 26984, 9003, 4152}, // NAD83(HARN) / Maine West (ftUS)
    StatePlaneRow{26857, 26991, 9003, 4152}, // NAD83(HARN) / Minnesota North (ftUS)
    StatePlaneRow{26858, 26992, 9003, 4152}, // NAD83(HARN) / Minnesota Central (ftUS)
    StatePlaneRow{26859, 26993, 9003, 4152}, // NAD83(HARN) / Minnesota South (ftUS)
    StatePlaneRow{26860, 32104, 9003, 4152}, // NAD83(HARN) / Nebraska (ftUS)
    StatePlaneRow{26861, 32150, 9003, 4152}, // NAD83(HARN) / West Virginia North (ftUS)
    StatePlaneRow{26862, 32151, 9003, 4152}, // NAD83(HARN) / West Virginia South (ftUS)
    StatePlaneRow{26863, 26983, 9003, 4759}, // NAD83(NSRS2007) / Maine East (ftUS)
    StatePlaneRow{26864, 26984, 9003, 4759}, // NAD83(NSRS2007) / Maine West (ftUS)
    StatePlaneRow{26865, 26991, 9003, 4759}, // NAD83(NSRS2007) / Minnesota North (ftUS)
    StatePlaneRow{26866, 26992, 9003, 4759}, // NAD83(NSRS2007) / Minnesota Central (ftUS)
    StatePlaneRow{26867, 26993, 9003, 4759}, // NAD83(NSRS2007) / Minnesota South (ftUS)
    StatePlaneRow{26868, 32104, 9003, 4759}, // NAD83(NSRS2007) / Nebraska (ftUS)
    StatePlaneRow{26869, 32150, 9003, 4759}, // NAD83(NSRS2007) / West Virginia North (ftUS)
    StatePlaneRow{26870, 32151, 9003, 4759}, // NAD83(NSRS2007) / West Virginia South (ftUS)
});
// clang-format on

} // namespace ZrProj::GeoTIFF
