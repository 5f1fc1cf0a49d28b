-- Ten questions to a recording. Make the database, then ask:
--
--     quvera-files export "240118_161500 Week" --sqlite week.db
--     sqlite3 -header -column week.db < questions.sql
--
-- A recording that has no voltages, say, has no table of them: its question ends with "no such table", the others go on.
-- Wirings without star point have L12, L23 and L31 for L1, L2 and L3.
-- Times are UTC; time_ms counts milliseconds since 1970 and is indexed.

-- 1. What was recorded, when, and by which instrument?
SELECT kind, start_utc, end_utc, model, serial, version, nominal_voltage_V, nominal_frequency_Hz FROM info;

-- 2. What was the lowest and the highest voltage of each phase, and when?
WITH voltage(phase, time_utc, low, high) AS (
    SELECT 'L1', time_utc, U_rms_min_L1_V, U_rms_max_L1_V FROM rms
    UNION ALL SELECT 'L2', time_utc, U_rms_min_L2_V, U_rms_max_L2_V FROM rms
    UNION ALL SELECT 'L3', time_utc, U_rms_min_L3_V, U_rms_max_L3_V FROM rms)
SELECT lowest.phase, lowest_V, lowest_at, highest_V, highest_at
FROM (SELECT phase, min(low) AS lowest_V, time_utc AS lowest_at FROM voltage GROUP BY phase) AS lowest
JOIN (SELECT phase, max(high) AS highest_V, time_utc AS highest_at FROM voltage GROUP BY phase) AS highest
USING (phase) ORDER BY phase;

-- 3. In what share of the intervals was the mean voltage more than ten percent away from the nominal one?
SELECT round(100.0 * avg(abs(U_rms_mean_L1_V / nominal_voltage_V - 1) > 0.1), 3) AS L1_percent,
       round(100.0 * avg(abs(U_rms_mean_L2_V / nominal_voltage_V - 1) > 0.1), 3) AS L2_percent,
       round(100.0 * avg(abs(U_rms_mean_L3_V / nominal_voltage_V - 1) > 0.1), 3) AS L3_percent
FROM rms, info;

-- 4. Between which voltages did L1 stay, in 95 of 100 means of ten minutes?
WITH period AS (
    SELECT avg(U_rms_mean_L1_V) AS U FROM rms GROUP BY time_ms / 600000),
ranked AS (
    SELECT U, row_number() OVER (ORDER BY U) AS place, count(*) OVER () AS n FROM period WHERE U IS NOT NULL)
SELECT min(U) AS from_V, max(U) AS to_V FROM ranked WHERE place BETWEEN 1 + n * 25 / 1000 AND n - n * 25 / 1000;

-- 5. Which hour had the highest load?
SELECT strftime('%Y-%m-%d %H:00', time_utc) AS hour, avg(P_mean_total_W) AS mean_W, max(P_max_total_W) AS highest_W
FROM power GROUP BY hour ORDER BY mean_W DESC LIMIT 1;

-- 6. How much energy was taken on each day?
WITH counted AS (
    SELECT date(time_utc) AS day, EP_total_Wh - lag(EP_total_Wh, 1, 0) OVER (ORDER BY time_ms) AS taken_Wh FROM energy)
SELECT day, sum(taken_Wh) AS energy_Wh FROM counted GROUP BY day ORDER BY day;

-- 7. How many events were there of each kind, and how far did the worst of them go?
SELECT name, count(*) AS events, min(value) AS lowest, max(value) AS highest, unit FROM events
GROUP BY name, unit ORDER BY events DESC, name;

-- 8. Which ten dips and interruptions left the least voltage, and how long did they last?
SELECT time_utc, channel, name, round(100 * value / nominal_voltage_V, 1) AS left_percent, duration_ms FROM events, info
WHERE name IN ('dip', 'interruption') ORDER BY value, time_ms LIMIT 10;

-- 9. How large did the common harmonics of L1 become, in percent of the fundamental of the same interval?
SELECT round(max(100 * Uh03_max_L1_V / Uh01_mean_L1_V), 2) AS h3, round(max(100 * Uh05_max_L1_V / Uh01_mean_L1_V), 2) AS h5,
       round(max(100 * Uh07_max_L1_V / Uh01_mean_L1_V), 2) AS h7, round(max(100 * Uh11_max_L1_V / Uh01_mean_L1_V), 2) AS h11,
       round(max(100 * Uh13_max_L1_V / Uh01_mean_L1_V), 2) AS h13
FROM harmonics_u;

-- 10. Where are gaps, and how long are they?
WITH step AS (
    SELECT lag(time_utc) OVER (ORDER BY time_ms) AS last_before, time_utc AS first_behind,
           time_ms - lag(time_ms) OVER (ORDER BY time_ms) AS ms FROM rms),
usual AS (
    SELECT ms FROM step WHERE ms IS NOT NULL GROUP BY ms ORDER BY count(*) DESC LIMIT 1)
SELECT last_before, first_behind, step.ms / 1000.0 AS seconds FROM step, usual WHERE step.ms > 1.5 * usual.ms
ORDER BY seconds DESC, first_behind;
