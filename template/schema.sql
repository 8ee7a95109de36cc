-- The master template of a working database. build-template.sh runs this file and adds the rows of the two CSV files.
--
-- Kinds of columns: text is compared without regard to case; numbers are REAL and finite, as a text beyond a double would
-- come back as another text; keys and counts are INTEGER. A date is
-- the text YYYY-MM-DD: adding no days gives back a day of the calendar as it was, and anything else changed or not at
-- all.
--
-- Rows are read without ORDER BY, in order of rowid. So tables whose key isn't made by the program keep a plain rowid,
-- and the indexes of fmtv_vorna and lmz_contour are partial: a whole one could stand in for the table in a walk over all
-- its keys, which would then come in the order of that index. Equality implies IS NOT NULL, so lookups lose nothing.
--
-- No index begins with freq_assgn or adm: few values, each on thousands of rows, yet the planner would take one and
-- loading would slow down with every notice that is in the database already.

BEGIN;

CREATE TABLE fmtv_vorna (
  vornakey              INTEGER PRIMARY KEY,
  assgn_id              TEXT COLLATE NOCASE,
  adm                   TEXT COLLATE NOCASE,
  d_rcv                 TEXT CHECK (d_rcv IS date(substr(d_rcv, 1, 10), '+0 days')),
  notice_typ            TEXT COLLATE NOCASE,
  stn_cls               TEXT COLLATE NOCASE,
  tran_sys              TEXT COLLATE NOCASE,
  d_adm_ntc             TEXT CHECK (d_adm_ntc IS date(substr(d_adm_ntc, 1, 10), '+0 days')),
  fragment              TEXT COLLATE NOCASE,
  prov                  TEXT COLLATE NOCASE,
  intent                TEXT COLLATE NOCASE,
  adm_ref_id            TEXT COLLATE NOCASE,
  plan_adm_ref_id       TEXT COLLATE NOCASE,
  call_sign             TEXT COLLATE NOCASE,
  stn_id                TEXT COLLATE NOCASE,
  freq_assgn            REAL CHECK (abs(freq_assgn) <= 1.7976931348623157e308),
  long_deg              REAL CHECK (abs(long_deg) <= 1.7976931348623157e308),
  long_min              REAL CHECK (abs(long_min) <= 1.7976931348623157e308),
  long_sec              REAL CHECK (abs(long_sec) <= 1.7976931348623157e308),
  long_ew               TEXT COLLATE NOCASE,
  long_rdn              REAL CHECK (abs(long_rdn) <= 1.7976931348623157e308),
  lat_deg               REAL CHECK (abs(lat_deg) <= 1.7976931348623157e308),
  lat_min               REAL CHECK (abs(lat_min) <= 1.7976931348623157e308),
  lat_sec               REAL CHECK (abs(lat_sec) <= 1.7976931348623157e308),
  lat_ns                TEXT COLLATE NOCASE,
  lat_rdn               REAL CHECK (abs(lat_rdn) <= 1.7976931348623157e308),
  ctry                  TEXT COLLATE NOCASE,
  site_name             TEXT COLLATE NOCASE,
  polar                 TEXT COLLATE NOCASE,
  erp_h_dbw             REAL CHECK (abs(erp_h_dbw) <= 1.7976931348623157e308),
  erp_v_dbw             REAL CHECK (abs(erp_v_dbw) <= 1.7976931348623157e308),
  hgt_agl               REAL CHECK (abs(hgt_agl) <= 1.7976931348623157e308),
  site_alt              REAL CHECK (abs(site_alt) <= 1.7976931348623157e308),
  eff_hgtmax            REAL CHECK (abs(eff_hgtmax) <= 1.7976931348623157e308),
  op_agcy               TEXT COLLATE NOCASE,
  addr_code             TEXT COLLATE NOCASE,
  d_inuse               TEXT CHECK (d_inuse IS date(substr(d_inuse, 1, 10), '+0 days')),
  ant_dir               TEXT COLLATE NOCASE,
  d_updated             TEXT CHECK (d_updated IS date(substr(d_updated, 1, 10), '+0 days')),
  d_recog               TEXT CHECK (d_recog IS date(substr(d_recog, 1, 10), '+0 days')),
  src_update            TEXT COLLATE NOCASE,
  d_expiry              TEXT CHECK (d_expiry IS date(substr(d_expiry, 1, 10), '+0 days')),
  offset_khz            TEXT COLLATE NOCASE,
  erp_beam_tilt_dbw     TEXT COLLATE NOCASE,
  beam_tilt_angle       TEXT COLLATE NOCASE,
  plan_entry            TEXT COLLATE NOCASE,
  assgn_code            TEXT COLLATE NOCASE,
  are_rmk_conds_met     TEXT COLLATE NOCASE,
  has_signed_commitment TEXT COLLATE NOCASE,
  is_pub_req            TEXT COLLATE NOCASE,
  is_resub              TEXT COLLATE NOCASE,
  rx_mode               TEXT COLLATE NOCASE,
  ref_plan_cfg          TEXT COLLATE NOCASE,
  sfn_id                TEXT COLLATE NOCASE,
  assoc_allot_id        TEXT COLLATE NOCASE,
  assoc_allot_sfn_id    TEXT COLLATE NOCASE,
  spect_mask            TEXT COLLATE NOCASE,
  src_notice            TEXT COLLATE NOCASE,
  is_public             TEXT COLLATE NOCASE,
  is_digital            TEXT COLLATE NOCASE,
  is_notice             TEXT COLLATE NOCASE,
  amend_type            TEXT COLLATE NOCASE,
  stage                 TEXT COLLATE NOCASE
) STRICT;

CREATE INDEX fmtv_vorna_reference ON fmtv_vorna (adm_ref_id, adm) WHERE adm_ref_id IS NOT NULL;
CREATE INDEX fmtv_vorna_position
  ON fmtv_vorna (long_deg, long_min, long_sec, lat_deg, lat_min, lat_sec, freq_assgn) WHERE long_deg IS NOT NULL;

CREATE TABLE lmz_allotment (
  vornakey      INTEGER NOT NULL UNIQUE REFERENCES fmtv_vorna ON DELETE CASCADE,
  allotkey      INTEGER PRIMARY KEY,
  allot_name    TEXT COLLATE NOCASE,
  typ_ref_netwk TEXT COLLATE NOCASE,
  geo_area      TEXT COLLATE NOCASE,
  nb_sub_areas  REAL CHECK (abs(nb_sub_areas) <= 1.7976931348623157e308)
) STRICT;

-- With vornakey the search by area, whose rows may be many, never turns to the table itself.
CREATE INDEX lmz_allotment_geo_area ON lmz_allotment (geo_area, vornakey) WHERE geo_area IS NOT NULL;

-- Several rows may have one contour_id, ctry and adm: the program tells the operator of it.
CREATE TABLE lmz_contour (
  contourkey  INTEGER PRIMARY KEY,
  contour_id  REAL CHECK (abs(contour_id) <= 1.7976931348623157e308),
  ctry        TEXT COLLATE NOCASE,
  adm         TEXT COLLATE NOCASE,
  intent      TEXT COLLATE NOCASE,
  nb_test_pts REAL CHECK (abs(nb_test_pts) <= 1.7976931348623157e308),
  remarks     TEXT COLLATE NOCASE,
  d_updated   TEXT CHECK (d_updated IS date(substr(d_updated, 1, 10), '+0 days')),
  d_recog     TEXT CHECK (d_recog IS date(substr(d_recog, 1, 10), '+0 days'))
) STRICT;

CREATE INDEX lmz_contour_identity ON lmz_contour (contour_id, ctry, adm) WHERE contour_id IS NOT NULL;

-- A link may be written before the contour and the allotment that it ties, hence the deferred keys.
CREATE TABLE lmz_sub_area (
  allotkey   INTEGER NOT NULL REFERENCES lmz_allotment ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED,
  contourkey INTEGER NOT NULL REFERENCES lmz_contour ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED
) STRICT;

CREATE INDEX lmz_sub_area_allotkey ON lmz_sub_area (allotkey);
CREATE INDEX lmz_sub_area_contourkey ON lmz_sub_area (contourkey);

CREATE TABLE lmz_contour_pt (
  contourkey INTEGER NOT NULL REFERENCES lmz_contour ON DELETE CASCADE,
  test_pt    INTEGER,
  long_deg   REAL CHECK (abs(long_deg) <= 1.7976931348623157e308),
  long_min   REAL CHECK (abs(long_min) <= 1.7976931348623157e308),
  long_sec   REAL CHECK (abs(long_sec) <= 1.7976931348623157e308),
  long_ew    TEXT COLLATE NOCASE,
  lat_deg    REAL CHECK (abs(lat_deg) <= 1.7976931348623157e308),
  lat_min    REAL CHECK (abs(lat_min) <= 1.7976931348623157e308),
  lat_sec    REAL CHECK (abs(lat_sec) <= 1.7976931348623157e308),
  lat_ns     TEXT COLLATE NOCASE
) STRICT;

CREATE INDEX lmz_contour_pt_contourkey ON lmz_contour_pt (contourkey);

CREATE TABLE fmtv_art5_target (
  vornakey       INTEGER NOT NULL REFERENCES fmtv_vorna ON DELETE CASCADE,
  trg_adm_ref_id TEXT COLLATE NOCASE,
  trg_freq_assgn REAL CHECK (abs(trg_freq_assgn) <= 1.7976931348623157e308),
  trg_long_deg   REAL CHECK (abs(trg_long_deg) <= 1.7976931348623157e308),
  trg_long_min   REAL CHECK (abs(trg_long_min) <= 1.7976931348623157e308),
  trg_long_sec   REAL CHECK (abs(trg_long_sec) <= 1.7976931348623157e308),
  trg_long_ew    TEXT COLLATE NOCASE,
  trg_lat_deg    REAL CHECK (abs(trg_lat_deg) <= 1.7976931348623157e308),
  trg_lat_min    REAL CHECK (abs(trg_lat_min) <= 1.7976931348623157e308),
  trg_lat_sec    REAL CHECK (abs(trg_lat_sec) <= 1.7976931348623157e308),
  trg_lat_ns     TEXT COLLATE NOCASE
) STRICT;

CREATE INDEX fmtv_art5_target_vornakey ON fmtv_art5_target (vornakey);

CREATE TABLE fmtv_op_prd (
  vornakey INTEGER NOT NULL REFERENCES fmtv_vorna ON DELETE CASCADE,
  op_hh_fr TEXT COLLATE NOCASE,
  op_hh_to TEXT COLLATE NOCASE
) STRICT;

CREATE INDEX fmtv_op_prd_vornakey ON fmtv_op_prd (vornakey);

CREATE TABLE fmtv_rmks (
  vornakey   INTEGER NOT NULL REFERENCES fmtv_vorna ON DELETE CASCADE,
  rmk_text   TEXT COLLATE NOCASE CHECK (length(rmk_text) <= 80),
  rmk_seq_no INTEGER,
  rmk_type   TEXT COLLATE NOCASE
) STRICT;

CREATE INDEX fmtv_rmks_vornakey ON fmtv_rmks (vornakey);

CREATE TABLE fmtv_coord (
  vornakey   INTEGER NOT NULL REFERENCES fmtv_vorna ON DELETE CASCADE,
  adm        TEXT COLLATE NOCASE,
  coord_prov TEXT COLLATE NOCASE,
  coord_st   TEXT COLLATE NOCASE,
  src_status TEXT COLLATE NOCASE,
  decl_affct TEXT COLLATE NOCASE,
  d_coord_st TEXT CHECK (d_coord_st IS date(substr(d_coord_st, 1, 10), '+0 days'))
) STRICT;

CREATE INDEX fmtv_coord_vornakey ON fmtv_coord (vornakey);

CREATE TABLE fmtv_ant_hgt (
  vornakey INTEGER NOT NULL REFERENCES fmtv_vorna ON DELETE CASCADE,
  azm      REAL CHECK (abs(azm) <= 1.7976931348623157e308),
  eff_hgt  REAL CHECK (abs(eff_hgt) <= 1.7976931348623157e308)
) STRICT;

CREATE INDEX fmtv_ant_hgt_vornakey ON fmtv_ant_hgt (vornakey);

CREATE TABLE fmtv_ant_diag (
  vornakey INTEGER NOT NULL REFERENCES fmtv_vorna ON DELETE CASCADE,
  azm      REAL CHECK (abs(azm) <= 1.7976931348623157e308),
  attn     REAL CHECK (abs(attn) <= 1.7976931348623157e308),
  polar    TEXT COLLATE NOCASE
) STRICT;

CREATE INDEX fmtv_ant_diag_vornakey ON fmtv_ant_diag (vornakey);

CREATE TABLE proc_ntc_hist (
  vornakey   INTEGER NOT NULL REFERENCES fmtv_vorna ON DELETE CASCADE,
  email_addr TEXT COLLATE NOCASE,
  src_update TEXT COLLATE NOCASE,
  d_updated  TEXT CHECK (d_updated IS date(substr(d_updated, 1, 10), '+0 days'))
) STRICT;

CREATE INDEX proc_ntc_hist_vornakey ON proc_ntc_hist (vornakey);

-- The next number of each series of keys. Exactly one row.
CREATE TABLE fmtv_keys (
  vornakey   INTEGER NOT NULL,
  allotkey   INTEGER NOT NULL,
  contourkey INTEGER NOT NULL
) STRICT;

INSERT INTO fmtv_keys (vornakey, allotkey, contourkey) VALUES (1, 1, 1);

-- Reference tables, read from the template itself.
CREATE TABLE op_agcy (
  adm     TEXT COLLATE NOCASE NOT NULL,
  op_agcy TEXT COLLATE NOCASE NOT NULL,
  PRIMARY KEY (adm, op_agcy)
) STRICT;

CREATE TABLE addr_code (
  adm       TEXT COLLATE NOCASE NOT NULL,
  addr_code TEXT COLLATE NOCASE NOT NULL,
  PRIMARY KEY (adm, addr_code)
) STRICT;

-- What follows belongs to other tools of the plan. This program leaves it alone.

CREATE TABLE fmtv_status (
  vornakey INTEGER NOT NULL REFERENCES fmtv_vorna ON DELETE CASCADE,
  stage    TEXT COLLATE NOCASE,
  status   TEXT COLLATE NOCASE,
  d_status TEXT CHECK (d_status IS date(substr(d_status, 1, 10), '+0 days'))
) STRICT;

CREATE INDEX fmtv_status_vornakey ON fmtv_status (vornakey);

CREATE TABLE fmtv_pub_hist (
  vornakey INTEGER NOT NULL REFERENCES fmtv_vorna ON DELETE CASCADE,
  circ_no  TEXT COLLATE NOCASE,
  pub_sect TEXT COLLATE NOCASE,
  d_pub    TEXT CHECK (d_pub IS date(substr(d_pub, 1, 10), '+0 days'))
) STRICT;

CREATE INDEX fmtv_pub_hist_vornakey ON fmtv_pub_hist (vornakey);

CREATE TABLE file_trace (
  file_name  TEXT COLLATE NOCASE,
  adm        TEXT COLLATE NOCASE,
  email_addr TEXT COLLATE NOCASE,
  nb_notices INTEGER,
  d_rcv      TEXT CHECK (d_rcv IS date(substr(d_rcv, 1, 10), '+0 days'))
) STRICT;

CREATE TABLE contour_trace (
  contourkey INTEGER,
  intent     TEXT COLLATE NOCASE,
  src_update TEXT COLLATE NOCASE,
  d_updated  TEXT CHECK (d_updated IS date(substr(d_updated, 1, 10), '+0 days'))
) STRICT;

CREATE TABLE circ (
  circ_no TEXT COLLATE NOCASE,
  d_circ  TEXT CHECK (d_circ IS date(substr(d_circ, 1, 10), '+0 days'))
) STRICT;

CREATE TABLE pub (
  circ_no  TEXT COLLATE NOCASE,
  pub_sect TEXT COLLATE NOCASE,
  adm      TEXT COLLATE NOCASE,
  d_pub    TEXT CHECK (d_pub IS date(substr(d_pub, 1, 10), '+0 days'))
) STRICT;

CREATE TABLE lmz_sfnID_proc (
  adm     TEXT COLLATE NOCASE,
  sfn_id  TEXT COLLATE NOCASE,
  proc_st TEXT COLLATE NOCASE,
  d_proc  TEXT CHECK (d_proc IS date(substr(d_proc, 1, 10), '+0 days'))
) STRICT;

CREATE TABLE lmz_elements (
  allotkey INTEGER,
  elem_typ TEXT COLLATE NOCASE,
  elem_val TEXT COLLATE NOCASE
) STRICT;

COMMIT;
