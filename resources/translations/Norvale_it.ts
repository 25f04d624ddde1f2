<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>Rimozione di &quot;%1&quot;... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>Nessuna estensione del browser trovata</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Estensioni del browser</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>Cerca estensioni...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Aggiorna</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Attendere...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>Analisi delle estensioni del browser...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Analisi in corso...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>%1 di %2 estensioni visualizzate</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>%1 estensioni in totale</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Rimuovi selezionate (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Rimuovi selezionate</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>Il browser è in esecuzione</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Questi browser hanno ancora processi in background in esecuzione:&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>Fare clic su &quot;Forza chiusura&quot; per terminare tutti i processi correlati e proseguire, oppure chiuderli manualmente e fare clic su &quot;Riprova&quot;.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; ha ancora processi in background in esecuzione.</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>Anche dopo aver chiuso la finestra del browser, alcuni processi in background possono restare attivi. Fare clic su &quot;Forza chiusura&quot; per terminarli, oppure chiuderli manualmente e fare clic su &quot;Riprova&quot;.</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>Forza chiusura e rimuovi</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>Impossibile terminare completamente: %1&lt;br&gt;Terminarlo manualmente da Gestione attività e riprovare.</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>Impossibile terminare completamente %1. Terminare manualmente tutti i processi di %2 da Gestione attività e riprovare.</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>Impossibile terminare il processo</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>Rimuovi estensione</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>Rimuovere &lt;b&gt;%1&lt;/b&gt;?&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;Verrà aperta la pagina delle estensioni di %2 e l&apos;ID dell&apos;estensione verrà copiato&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>Rimozione dell&apos;estensione...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ &quot;%1&quot; rimossa</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>Rimozione automatica non riuscita</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Impossibile rimuovere automaticamente &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>La pagina delle estensioni di %1 è stata aperta.&lt;br&gt;L&apos;ID dell&apos;estensione è stato copiato negli Appunti:&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;Dopo averla rimossa manualmente, fare clic su &lt;b&gt;Aggiorna&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Rimozione multipla</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>Rimuovere le &lt;b&gt;%1&lt;/b&gt; estensioni selezionate?</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>Rimozione di %1 estensioni...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>Rimozione completata</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; estensioni rimosse correttamente.</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>L&apos;elenco verrà aggiornato automaticamente.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Rimozione non riuscita per alcuni elementi</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>Riuscite: &lt;b&gt;%1&lt;/b&gt;; non riuscite: &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>Elementi non rimossi (rimuoverli manualmente dal browser):&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>Disattivata</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation>%1 estensioni</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Pulizia disco</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>Analizza i file inutili del sistema e libera spazio su disco in sicurezza</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>Analisi in corso…</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>Attendere</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 Ripeti analisi</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ Seleziona tutto</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>🗑 Pulisci selezionati</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Analisi completata</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ Pulizia completata: liberati &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ Deseleziona tutto</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; categorie selezionate  ·  Spazio da liberare: circa &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>Trovate %1 categorie di file da pulire, per un totale di %2</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>%1 categorie selezionate  ·  Spazio da liberare: circa %2</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>Analisi in corso…</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>File temporanei di Windows</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>Cache di Windows Update</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>Cache di Google Chrome</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>Cache di Microsoft Edge</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>Cache di Mozilla Firefox</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>File di log di sistema</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>Cache di Prefetch</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>Cache delle anteprime</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>File di dump della memoria</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>Cestino</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>Installazioni di Windows precedenti</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Pulizia disco</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>Elimina i file inutili</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Disinstalla programmi</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>Gestisci i programmi installati</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>App di Windows</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>Gestisci le app UWP</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Estensioni del browser</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>Gestisci le estensioni</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Panoramica del sistema</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● In tempo reale</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>Lettura delle informazioni di sistema…</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>Aggiornamenti installati</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>Prestazioni in tempo reale</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>Azioni rapide</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>%1 core</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>Attivo da %1 h %2 min</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>Attivo da %1 giorni %2 h</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>Rimozione forzata</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  Forza rimozione selezionati</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>Rimozione forzata: %1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>Ricerca degli elementi da rimuovere...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  Controllare attentamente ogni elemento. Gli elementi ad alto rischio sono deselezionati per impostazione predefinita.</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Deseleziona tutto</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  Nessun elemento da rimuovere.</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>Rimozione degli elementi selezionati...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>Rimozione forzata completata</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>L&apos;applicazione e i file associati sono stati rimossi.</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>Il percorso di installazione %1 è una cartella di sistema o dell&apos;utente: non verrà toccato.</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>Nessun elemento da rimuovere</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>Trovati &lt;b&gt;%1&lt;/b&gt; elementi  ·  &lt;b&gt;%2&lt;/b&gt; recuperabili</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Avvio in corso...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Rimozione forzata completata  ·  liberati &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Fatto ✓</translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation>Cartella di installazione</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>Dati applicazione</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Registro di sistema</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Avvio</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>Collegamento di avvio</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>Attività pianificata</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Servizio</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ Rischio elevato</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>Terminazione dei processi...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>Analisi della cartella di installazione...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>Analisi dei dati dell&apos;applicazione...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>Analisi del Registro di sistema...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>Analisi degli elementi di avvio...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>Analisi delle attività pianificate...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>Analisi dei servizi...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>Cartella di installazione: %1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>Dati applicazione: .../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>Voce di disinstallazione nel Registro di sistema: %1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>Avvio dal Registro di sistema: %1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>Collegamento di avvio: %1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>Attività pianificata: %1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>Servizio di Windows: %1 (%2)</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>Rimozione: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Fatto: %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Impossibile caricare i collegamenti della pagina.

Contattare l&apos;assistenza tecnica o reinstallare il programma.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Impossibile aprire il browser</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Impossibile aprire il browser predefinito.

Copiare il collegamento e aprirlo manualmente:
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>Errore di configurazione</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>Informazioni su Norvale</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Lingua cambiata</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>Lingua impostata su: %1
L&apos;applicazione verrà riavviata ora.</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>Riavvio non riuscito</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>Riavviare l&apos;applicazione manualmente.</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>Pulisci residui</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  Pulisci residui</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>Ricerca dei file residui...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>Inizializzazione...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  Nessun file residuo trovato!</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Deseleziona tutto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Analisi in corso...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>Trovati &lt;b&gt;%1&lt;/b&gt; elementi  ·  &lt;b&gt;%2&lt;/b&gt; recuperabili</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>Nessun file residuo trovato</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  Pulisci selezionati</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Pulizia in corso...</translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation>Pulizia in corso... %1%</translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation>✅  Pulizia completata — liberati %1</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Fatto ✓</translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation>Sicuro</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Da confermare</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>Dati di app orfani</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>File di cache</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>File di log</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Segnalazioni di arresto anomalo</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>File temporanei</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation>Funzioni</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Panoramica del sistema</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>Pulizia disco</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Disinstalla programmi</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>App di Windows</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Estensioni del browser</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Riduci a icona</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  Informazioni su Norvale</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  Lingua</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  Guida</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬  Assistenza</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Ripristina</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>Disinstalla programmi</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>Gestione dei programmi installati · Disinstallazione multipla · Pulizia dei residui nel Registro di sistema</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> programmi</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> inutilizzati</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>Cerca programmi installati...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Inutilizzati</translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation>↺ Aggiorna</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>Per dimensioni</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>Per data</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>Per nome</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Autore</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensioni</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>Data di installazione</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>Fare clic su Aggiorna per analizzare i programmi installati.</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Analisi dei programmi installati...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>Lettura delle voci del Registro di sistema, attendere...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ Pulisci residui</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>Disinstalla selezionati</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Analisi in corso...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; programmi</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>Selezionati: &lt;b&gt;%1&lt;/b&gt;  ·  Spazio liberato: &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>Conferma disinstallazione</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>Disinstallare &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>Programma di disinstallazione non trovato</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; non dispone di un programma di disinstallazione proprio.</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>Usare &lt;b&gt;Rimozione forzata&lt;/b&gt; per eliminare la cartella di installazione, le voci del Registro di sistema e i file associati.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Questa operazione non può essere annullata.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>Rimozione forzata…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>Disinstallazione: %1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ Disinstallato: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Pulisci residui →&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ Disinstallazione non riuscita: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>Disinstallazione non riuscita</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>Impossibile disinstallare &lt;b&gt;%1&lt;/b&gt; con il suo programma di disinstallazione.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>La &lt;b&gt;Rimozione forzata&lt;/b&gt;:&lt;br&gt;• Termina tutti i processi in esecuzione&lt;br&gt;• Elimina la cartella di installazione&lt;br&gt;• Rimuove le voci del Registro di sistema&lt;br&gt;• Pulisce gli elementi di avvio e i servizi&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Questa operazione non può essere annullata. Controllare attentamente gli elementi prima di confermare.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>Non trovato</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>Impossibile trovare le informazioni di installazione di &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Rimuoverlo manualmente.</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>Disinstallazione multipla</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>Disinstallare le %1 app selezionate?
Questa operazione non può essere annullata.</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation>Rimozione non riuscita (potrebbero essere necessari privilegi di amministratore)</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>App protetta dal sistema: la registrazione per l&apos;utente corrente è stata rimossa, ma i componenti di sistema potrebbero essere ripristinati al riavvio.
Per eliminarla completamente, eseguire questo programma come amministratore.</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>App di Windows</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>Cerca app...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Aggiorna</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>Autore</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>Data di installazione</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Dimensioni</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>Rimozione dell&apos;app...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Attendere...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Analisi in corso...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>Analisi delle app di Windows...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>Analisi delle app di Windows... %1 trovate</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>%1 di %2 app visualizzate</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>%1 app in totale</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Rimuovi selezionate</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Rimuovi selezionate (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>%1 app selezionate</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>Impossibile disinstallare Microsoft Edge</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>Microsoft Edge è un componente di Windows e non può essere disinstallato in questo modo.

Per cambiare il browser predefinito, andare in
&quot;Impostazioni &gt; App &gt; App predefinite&quot;.</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>Rimuovi app</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>Rimuovere &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Rimozione multipla</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>Rimuovere le %1 app selezionate?
Questa operazione non può essere annullata.</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>Rimozione di %1 app...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>%1 / %2 app</translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation>Rimozione di &quot;%1&quot;... (%2/%3)</translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation>• %1: %2</translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation>✓ %1 app rimosse, aggiornamento in corso...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>Rimozione non riuscita</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>Non è stato possibile rimuovere nessuna app.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Rimozione non riuscita per alcune app</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>Riuscite: &lt;b&gt;%1&lt;/b&gt;; non riuscite: &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>Dettagli degli errori:&lt;br&gt;%1&lt;br&gt;&lt;br&gt;Le app di sistema preinstallate (come Edge e Foto) potrebbero essere protette e non possono essere rimosse in questo modo.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
