-- The directory database "master": which customer companies exist. The settings window looks a company
-- id up here before it saves; the id is also the name of the company's own database. Several companies
-- may share one server, so the table is made only once.
CREATE TABLE IF NOT EXISTS COMPANY (
  COM_ID        VARCHAR(40) NOT NULL,
  DB_HostnameIP VARCHAR(100) NOT NULL DEFAULT '',
  DB_Database   VARCHAR(64) NOT NULL DEFAULT '',
  DB_User       VARCHAR(40) NOT NULL DEFAULT '',
  PRIMARY KEY (COM_ID)
) ENGINE = InnoDB DEFAULT CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci;
